#include "runtime/ErrorTrap.h"

#include <new>

namespace {

RuntimeError currentError()
{
    try {
        throw;
    } catch (const RuntimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return RuntimeError(OutOfMemory);
    } catch (const std::exception &error) {
        return RuntimeError(InvalidProcedureCall, QStringLiteral("Tessaly"),
                            QString::fromLocal8Bit(error.what()));
    } catch (...) {
        return RuntimeError(InvalidProcedureCall);
    }
}

} // namespace

void ErrorTrap::endWithCurrentError() noexcept
{
    const RuntimeError error = currentError();
    const QString text =
        QStringLiteral("Run-time error '%1':\r\n\r\n").arg(error.number()) + error.description();
    mPrompts.ask({QStringLiteral("Tessaly"), text, Prompt::Icon::Critical, Prompt::Buttons::Ok});
    mProgram.end(1);
}
