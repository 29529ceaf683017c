// Listener functions of a base message type made from member functions that take a
// specific message type.
#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include "zebcore/utility/NonOptionalDynamicCast.h"
#include "zebui/ui/MessageT.h"
#include "zebui/ui/NodeFunctions.h"

namespace zebui {
namespace ui {

// Casts the base message to Message with NonOptionalDynamicCast, so a message of
// another type throws the conversion error (a zebcore::config::ZebException) out of the
// delivery, then calls the member function. Holds a plain pointer to the object: the
// object must stop listening, or outlive the sender, before it dies.
template <class Object, class Message, class BaseMessage, class Result>
class MessageFunctionAdapter {
public:
    using Member = Result (Object::*)(Message*);

    MessageFunctionAdapter(Object* object, Member member) : mObject(object), mMember(member) {}

    void operator()(BaseMessage* message) const {
        Message* specific = zebcore::utility::NonOptionalDynamicCast<BaseMessage*, Message*>(
            message, zebcore::utility::kInvalidTypeConversion, 105, 21);
        (mObject->*mMember)(specific);
    }

private:
    Object* mObject;
    Member mMember;
};

// For messages of a node: NotifyWhenChanged and its kind.
template <class Object, class Message, class Result>
MessageFunctionP BindMessageFunction(Object* object, Result (Object::*member)(Message*)) {
    return MessageFunctionP(new MessageFunction(
        MessageFunctionAdapter<Object, Message, MessageT<UI_Node>, Result>(object, member)));
}

// For messages of a const node: picture supply and its kind.
template <class Object, class Message, class Result>
ConstMessageFunctionP BindConstMessageFunction(Object* object, Result (Object::*member)(Message*)) {
    return ConstMessageFunctionP(new ConstMessageFunction(
        MessageFunctionAdapter<Object, Message, MessageT<const UI_Node>, Result>(object, member)));
}

}  // namespace ui
}  // namespace zebui
