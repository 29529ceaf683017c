// The polymorphic base of the messages a node sends to its listeners.
#pragma once

namespace zebui {
namespace ui {

// Sender is UI_Node or const UI_Node. A message lives on the sender's stack for the
// length of the delivery: a listener must not keep it.
template <class Sender> class MessageT {
public:
    explicit MessageT(Sender* sender) : mSender(sender) {}
    virtual ~MessageT() = default;

    Sender* GetSender() const { return mSender; }

private:
    Sender* mSender;
};

}  // namespace ui
}  // namespace zebui
