#include "shell/ActivationRule.h"

bool ActivationRule::becomesActive(Window window, bool previousIsGone)
{
    const bool comesFromOther = mComesFromOther && (!mHasLeft || previousIsGone);
    const bool activated = window == Window::Main && (!mWasActive || comesFromOther);
    mWasActive = mWasActive || window == Window::Main;
    mComesFromOther = window == Window::Other;
    mHasLeft = false;
    return activated;
}

void ActivationRule::noneIsActive()
{
    mHasLeft = true;
}
