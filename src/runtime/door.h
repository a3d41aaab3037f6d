// One thing at a time.
#pragma once

#include "runtime/form.h"

#include <functional>
#include <utility>

namespace tessarine
{

/// All on one thread, yet slides, deals and layouts let events run, so that what the user asks for can
/// arrive while something else is half done. Whatever the user can begin on the main form goes through
/// this one door, which is shut until it is over. A modal form that it opens is exempt: the program
/// opens none before the table is whole.
class Door
{
public:
    /// `whenOver` runs each time that nothing is under way any more.
    explicit Door(const Forms& forms, std::function<void()> whenOver = {})
        : forms_(forms), whenOver_(std::move(whenOver))
    {
    }

    bool IsOpen() const { return inmost_ == nullptr || inmost_->modal_ != forms_.Modal(); }

    /// Runs the action unless the door is shut; then it is not begun at all.
    template <class Action> void Pass(const Action& action)
    {
        if (IsOpen()) {
            Enter(action);
        }
    }

    /// Runs the action whatever is half done, and keeps the door shut meanwhile: for what may not be
    /// lost.
    template <class Action> void Enter(const Action& action)
    {
        {
            const Visit visit(*this);
            action();
        }
        if (inmost_ == nullptr && whenOver_) {
            whenOver_();
        }
    }

private:
    class Visit
    {
    public:
        explicit Visit(Door& door) : door_(door), outer_(door.inmost_), modal_(door.forms_.Modal())
        {
            door.inmost_ = this;
        }
        ~Visit() { door_.inmost_ = outer_; }
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;

    private:
        friend class Door;
        Door& door_;
        const Visit* outer_;
        const Form* modal_; ///< that was open when the visit began
    };

    const Forms& forms_;
    std::function<void()> whenOver_;
    const Visit* inmost_ = nullptr;
};

} // namespace tessarine
