#include "runtime/ErrorTrap.h"

void ErrorTrap::endWithCurrentError() noexcept
{
    const RuntimeError error = RuntimeError::caught();
    const QString text =
        QStringLiteral("Run-time error '%1':\r\n\r\n").arg(error.number()) + error.description();
    mPrompts.ask({QStringLiteral("Tessaly"), text, Prompt::Icon::Critical, Prompt::Buttons::Ok});
    mProgram.end(1);
}
