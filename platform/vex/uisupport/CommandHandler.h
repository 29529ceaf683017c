// The application's command chain: handlers, their attachments, and the current handler.
#pragma once

#include <memory>
#include <vector>

#include "zebcore/utility/Strings.h"

namespace vex {
namespace uisupport {

class CommandHandler;

// Something a handler asks about commands before its own handling. The handler that it
// is added to owns it and deletes it when the handler ends or lets it go.
class CommandAttachment {
public:
    CommandAttachment() = default;
    virtual ~CommandAttachment();
    CommandAttachment(const CommandAttachment&) = delete;
    CommandAttachment& operator=(const CommandAttachment&) = delete;

    // True: the command is carried out and the chain stops.
    virtual bool DoHandleCommand(int commandId) = 0;
    // True: the command is known here; enabled, checked and displayString are the answer.
    virtual bool DoCommandEnabled(int commandId, bool& enabled, bool& checked,
                                  zebcore::UTF16String& displayString) = 0;
    // A held command was let go. Nothing by default.
    virtual void DoEndHoldCommand(int commandId);

    // The handler that owns it; null before it is added.
    CommandHandler* GetHandler() const { return mHandler; }

private:
    friend class CommandHandler;
    CommandHandler* mHandler = nullptr;
};

// One entry for both questions: outs null to carry a command out, else the enable query.
class UnifiedDispatchBase {
public:
    struct EnableOuts {
        bool* enabled;
        bool* checked;
        zebcore::UTF16String* displayString;
    };
    virtual ~UnifiedDispatchBase();
    virtual bool UnifiedDispatch(int commandId, EnableOuts* outs) = 0;
};

// An attachment that answers both questions in UnifiedDispatch.
class UnifiedDispatchCmdAttachment : public CommandAttachment, public UnifiedDispatchBase {
public:
    bool DoHandleCommand(int commandId) override;
    bool DoCommandEnabled(int commandId, bool& enabled, bool& checked,
                          zebcore::UTF16String& displayString) override;
};

// A link of the chain. A command goes to the current handler, then up its parents, then to
// the application, each handler once; the first that handles it ends the walk. A handler
// that dies leaves the chain: it stops being current, its children lose their parent,
// and a walk under way skips it.
class CommandHandlerBase {
public:
    explicit CommandHandlerBase(CommandHandlerBase* parent = nullptr);
    virtual ~CommandHandlerBase();
    CommandHandlerBase(const CommandHandlerBase&) = delete;
    CommandHandlerBase& operator=(const CommandHandlerBase&) = delete;

    CommandHandlerBase* GetParentHandler() const { return mParent; }
    void SetParentHandler(CommandHandlerBase* parent) { mParent = parent; }

    // This handler's turn: by default its own handling only.
    virtual bool HandleCommand(int commandId);
    virtual bool CommandEnabled(int commandId, bool& enabled, bool& checked,
                                zebcore::UTF16String& displayString);

    // Null clears it; the application stays the end of every walk.
    static void SetCurrentCommandHandler(CommandHandlerBase* handler);
    static CommandHandlerBase* GetCurrentCommandHandler();
    // Offers the command along the chain; true when someone handled it.
    static bool CallCommandChain(int commandId);
    // Asks along the chain; true when someone knew the command, which wrote the answer.
    static bool CommandEnabledChain(int commandId, bool& enabled, bool& checked,
                                    zebcore::UTF16String& displayString);

protected:
    virtual bool DoHandleCommand(int commandId);
    virtual bool DoCommandEnabled(int commandId, bool& enabled, bool& checked,
                                  zebcore::UTF16String& displayString);

private:
    CommandHandlerBase* mParent;
};

// A handler with attachments: they are asked in the order they were added, before the
// handler's own handling.
class CommandHandler : public CommandHandlerBase {
public:
    explicit CommandHandler(CommandHandlerBase* parent = nullptr);
    ~CommandHandler() override;

    // Takes ownership.
    void AddAttachment(CommandAttachment* attachment);
    // Deletes the attachment; one that is not here is left alone.
    void RemoveAttachment(CommandAttachment* attachment);
    size_t GetAttachmentCount() const;

    bool HandleCommand(int commandId) override;
    bool CommandEnabled(int commandId, bool& enabled, bool& checked,
                        zebcore::UTF16String& displayString) override;

private:
    template <class Ask> bool askAttachments(Ask ask);
    void tidy();

    // Attachments a walk adds run from the next command on; one removed while asked is
    // deleted once no walk uses the list.
    std::vector<std::unique_ptr<CommandAttachment>> mAttachments;
    std::vector<std::unique_ptr<CommandAttachment>> mRetired;
    int mAsking = 0;
};

}  // namespace uisupport
}  // namespace vex
