#include "shell/ActivationRule.h"

bool ActivationRule::becomesActive(Window window)
{
    const bool activated = window == Window::Main && (!mWasActive || mComesFromOther);
    mWasActive = mWasActive || window == Window::Main;
    mComesFromOther = window == Window::Other;
    return activated;
}

void ActivationRule::noneIsActive(bool closed)
{
    if (!closed)
        mComesFromOther = false;
}
