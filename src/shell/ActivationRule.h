#pragma once

/// When the main window counts as activated: as it becomes the active window for the first time,
/// and when it becomes so from another window of this program. Coming back from a message box or
/// from another program is no activation: a message that an activation shows would show itself
/// again for ever.
class ActivationRule
{
public:
    enum class Window { Main, Other, MessageBox };

    /// A window of this program has become the active one. True when that activates the main
    /// window. `previousIsGone`: the window that was active before, here or before the user went
    /// to another program, has been closed; he is still on his way from it then, whatever the
    /// desktop has turned to in between.
    bool becomesActive(Window window, bool previousIsGone = false);
    /// No window of this program is the active one any more.
    void noneIsActive();

private:
    bool mWasActive = false;
    bool mComesFromOther = false; ///< the window before was another one of this program
    bool mHasLeft = false;        ///< and none was active since
};
