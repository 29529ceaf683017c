// A text field for search terms.
#pragma once

#include <list>
#include <set>

#include <boost/shared_ptr.hpp>

#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_SearchBox : public UI_InteractiveControlView {
public:
    // The two flags are the toolkit's box options, kept as given.
    UI_SearchBox(bool first, bool second);
    ~UI_SearchBox() override;

    bool GetFirstFlag() const { return mFirst; }
    bool GetSecondFlag() const { return mSecond; }

    // The tool tip lists the recent searches, newest first, one a line; with no history
    // container it is left alone.
    void SetSearchToolTip();

    // The box's recent searches, newest first, and its saved searches; null until whoever
    // makes the box gives it containers, which the box may share with others.
    boost::shared_ptr<std::list<zebcore::UTF16String>> mSearchHistory;
    boost::shared_ptr<std::set<zebcore::UTF16String>> mSavedSearches;

protected:
    // A sunken field with a lens at the left.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;

private:
    bool mFirst;
    bool mSecond;
};

}  // namespace controls
}  // namespace zebui
