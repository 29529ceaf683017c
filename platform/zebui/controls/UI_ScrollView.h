// A view that scrolls a content view.
#pragma once

#include <boost/intrusive_ptr.hpp>

#include "zebcore/utility/Flags.h"
#include "zebui/controls/UI_InteractiveControlView.h"

namespace zebui {
namespace controls {

class UI_ScrollView : public UI_InteractiveControlView {
public:
    UI_ScrollView(zebcore::utility::Flags<unsigned int> flags,
                  const boost::intrusive_ptr<ui::UI_SubView>& contentView);
    ~UI_ScrollView() override;
};

}  // namespace controls
}  // namespace zebui
