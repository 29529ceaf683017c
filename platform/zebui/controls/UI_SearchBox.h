// A text field for search terms.
#pragma once

#include <list>
#include <set>

#include <boost/shared_ptr.hpp>

#include "zebcore/utility/Strings.h"
#include "zebui/controls/UI_TextEdit.h"

namespace zebui {
namespace controls {

// A text edit whose return key records the text as the newest recent search: an older
// equal entry goes, and the list is cut to the history's largest size (a size below 0
// counts as 0). The sizes are kept as given (10 each at the start).
class UI_SearchBox : public UI_TextEdit {
public:
    static constexpr int kDefaultListSize = 10;

    // The two flags are the toolkit's box options, kept as given.
    UI_SearchBox(bool first, bool second);
    ~UI_SearchBox() override;

    bool GetFirstFlag() const { return mFirst; }
    bool GetSecondFlag() const { return mSecond; }

    // The tool tip lists the recent searches, newest first, one a line; with no history
    // container it is left alone.
    void SetSearchToolTip();

    void SetSearchHistoryMaxSize(int size) { mSearchHistoryMaxSize = size; }
    int GetSearchHistoryMaxSize() const { return mSearchHistoryMaxSize; }
    void SetSavedSearchMaxSize(int size) { mSavedSearchMaxSize = size; }
    int GetSavedSearchMaxSize() const { return mSavedSearchMaxSize; }
    void SetSearchHistoryDisplayMaxSize(int size) { mSearchHistoryDisplayMaxSize = size; }
    int GetSearchHistoryDisplayMaxSize() const { return mSearchHistoryDisplayMaxSize; }

    // Right of the lens.
    zebcore::geom::RectT<float> GetLabelTextRect() const override;

    // The box's recent searches, newest first, and its saved searches; null until whoever
    // makes the box gives it containers, which the box may share with others.
    boost::shared_ptr<std::list<zebcore::UTF16String>> mSearchHistory;
    boost::shared_ptr<std::set<zebcore::UTF16String>> mSavedSearches;

protected:
    // A sunken field with a lens at the left.
    void UI_DrawFace(inkwell::Inkwell* inkwell) const override;
    // The return key records the search.
    bool HandleOtherKey(const ui::KeyboardEvent& event) override;

private:
    void recordSearch();

    bool mFirst;
    bool mSecond;
    int mSearchHistoryMaxSize = kDefaultListSize;
    int mSavedSearchMaxSize = kDefaultListSize;
    int mSearchHistoryDisplayMaxSize = kDefaultListSize;
};

}  // namespace controls
}  // namespace zebui
