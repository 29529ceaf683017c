// The command chain.
#include "vex/uisupport/CommandHandler.h"

#include <algorithm>

#include "vex/app/App.h"

namespace vex {
namespace uisupport {
namespace {

// Never destroyed: handlers that are statics of their own (the application) may end
// after any other static of this file.
std::vector<CommandHandlerBase*>& liveHandlers() {
    static auto* sLive = new std::vector<CommandHandlerBase*>();
    return *sLive;
}

CommandHandlerBase* sCurrent = nullptr;

bool isLive(const CommandHandlerBase* handler) {
    const auto& live = liveHandlers();
    return std::find(live.begin(), live.end(), handler) != live.end();
}

// The handlers a command visits, each once: the current one, its parents, the application.
std::vector<CommandHandlerBase*> chainNow() {
    std::vector<CommandHandlerBase*> chain;
    auto add = [&chain](CommandHandlerBase* handler) {
        if (handler && std::find(chain.begin(), chain.end(), handler) == chain.end())
            chain.push_back(handler);
    };
    for (CommandHandlerBase* h = sCurrent; h; h = h->GetParentHandler()) {
        if (std::find(chain.begin(), chain.end(), h) != chain.end()) break;  // a loop of parents
        add(h);
    }
    add(app::App::GetApp());
    return chain;
}

}  // namespace

CommandAttachment::~CommandAttachment() = default;

void CommandAttachment::DoEndHoldCommand(int /*commandId*/) {}

UnifiedDispatchBase::~UnifiedDispatchBase() = default;

bool UnifiedDispatchCmdAttachment::DoHandleCommand(int commandId) {
    return UnifiedDispatch(commandId, nullptr);
}

bool UnifiedDispatchCmdAttachment::DoCommandEnabled(int commandId, bool& enabled, bool& checked,
                                                    zebcore::UTF16String& displayString) {
    EnableOuts outs{&enabled, &checked, &displayString};
    return UnifiedDispatch(commandId, &outs);
}

CommandHandlerBase::CommandHandlerBase(CommandHandlerBase* parent) : mParent(parent) {
    liveHandlers().push_back(this);
}

CommandHandlerBase::~CommandHandlerBase() {
    auto& live = liveHandlers();
    live.erase(std::remove(live.begin(), live.end(), this), live.end());
    for (CommandHandlerBase* other : live)
        if (other->mParent == this) other->mParent = nullptr;
    if (sCurrent == this) sCurrent = nullptr;
}

bool CommandHandlerBase::HandleCommand(int commandId) {
    return DoHandleCommand(commandId);
}

bool CommandHandlerBase::CommandEnabled(int commandId, bool& enabled, bool& checked,
                                        zebcore::UTF16String& displayString) {
    return DoCommandEnabled(commandId, enabled, checked, displayString);
}

bool CommandHandlerBase::DoHandleCommand(int /*commandId*/) {
    return false;
}

bool CommandHandlerBase::DoCommandEnabled(int /*commandId*/, bool& /*enabled*/, bool& /*checked*/,
                                          zebcore::UTF16String& /*displayString*/) {
    return false;
}

void CommandHandlerBase::SetCurrentCommandHandler(CommandHandlerBase* handler) {
    sCurrent = handler;
}

CommandHandlerBase* CommandHandlerBase::GetCurrentCommandHandler() {
    return sCurrent;
}

bool CommandHandlerBase::CallCommandChain(int commandId) {
    for (CommandHandlerBase* handler : chainNow())
        if (isLive(handler) && handler->HandleCommand(commandId)) return true;
    return false;
}

bool CommandHandlerBase::CommandEnabledChain(int commandId, bool& enabled, bool& checked,
                                             zebcore::UTF16String& displayString) {
    for (CommandHandlerBase* handler : chainNow())
        if (isLive(handler) && handler->CommandEnabled(commandId, enabled, checked, displayString))
            return true;
    return false;
}

CommandHandler::CommandHandler(CommandHandlerBase* parent) : CommandHandlerBase(parent) {}

CommandHandler::~CommandHandler() = default;

void CommandHandler::AddAttachment(CommandAttachment* attachment) {
    if (!attachment) return;
    attachment->mHandler = this;
    mAttachments.emplace_back(attachment);
}

void CommandHandler::RemoveAttachment(CommandAttachment* attachment) {
    for (auto& slot : mAttachments) {
        if (slot.get() != attachment) continue;
        if (mAsking > 0) {
            mRetired.push_back(std::move(slot));  // may be the one being asked
        } else {
            slot.reset();
        }
        break;
    }
    if (mAsking == 0) tidy();
}

size_t CommandHandler::GetAttachmentCount() const {
    return static_cast<size_t>(
        std::count_if(mAttachments.begin(), mAttachments.end(), [](const auto& a) { return !!a; }));
}

void CommandHandler::tidy() {
    mAttachments.erase(std::remove(mAttachments.begin(), mAttachments.end(), nullptr),
                       mAttachments.end());
    mRetired.clear();
}

template <class Ask> bool CommandHandler::askAttachments(Ask ask) {
    ++mAsking;
    bool answered = false;
    const size_t count = mAttachments.size();
    for (size_t i = 0; i < count && !answered; ++i) {
        CommandAttachment* attachment = mAttachments[i].get();
        if (attachment) answered = ask(*attachment);
    }
    if (--mAsking == 0) tidy();
    return answered;
}

bool CommandHandler::HandleCommand(int commandId) {
    if (askAttachments([commandId](CommandAttachment& a) { return a.DoHandleCommand(commandId); }))
        return true;
    return DoHandleCommand(commandId);
}

bool CommandHandler::CommandEnabled(int commandId, bool& enabled, bool& checked,
                                    zebcore::UTF16String& displayString) {
    if (askAttachments([&](CommandAttachment& a) {
            return a.DoCommandEnabled(commandId, enabled, checked, displayString);
        }))
        return true;
    return DoCommandEnabled(commandId, enabled, checked, displayString);
}

}  // namespace uisupport
}  // namespace vex
