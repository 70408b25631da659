#include "shell/StartUp.h"

#include "runtime/Counter16.h"
#include "shell/Identity.h"

#include <QEventLoopLocker>
#include <QRegularExpression>
#include <QStringList>

namespace {

constexpr qint32 invalidVersion = 23001;

/// The numbers of a version, each checked when it is asked for.
class VersionPieces
{
public:
    explicit VersionPieces(const QString &version)
    {
        if (!version.isEmpty())
            mPieces = version.split(u'.');
    }

    /// `index` 0 is the first piece.
    qint16 at(qsizetype index) const
    {
        static const QRegularExpression number(QStringLiteral("^\\s*[+-]?[0-9]+\\s*$"));
        if (index >= mPieces.size())
            throw RuntimeError(SubscriptOutOfRange);
        if (!number.match(mPieces[index]).hasMatch())
            throw RuntimeError(TypeMismatch);
        bool fits = false;
        const qint16 piece = mPieces[index].toShort(&fits);
        if (!fits)
            throw RuntimeError(Overflow);
        return piece;
    }

private:
    QStringList mPieces;
};

void report(const QString &routine, const RuntimeError &error, Prompts &prompts, ErrorLog &log)
{
    // The last system error is that of a library function declared by the program; it declares
    // none.
    const QString line = QStringLiteral("Tessaly Error(") + routine + QStringLiteral("): ") +
                         QString::number(error.number()) + QStringLiteral("; Source: ") +
                         error.source() + QStringLiteral("; LastDLLError: 0; Description: ") +
                         error.description();
    log.write(line);
    prompts.ask({defaultPromptTitle(), line, Prompt::Icon::None, Prompt::Buttons::Ok});
}

Prompt incompatibleVersion(const QString &version)
{
    const QString lineBreaks = QStringLiteral("\r\n\r\n");
    const QString text =
        QStringLiteral("This version of Tessaly (v") + Identity::version() + QStringLiteral(")") +
        QStringLiteral(
            " only supports System 9 FM release 4.1 and above and HFM release 4.0.5 and above") +
        lineBreaks + QStringLiteral("Tessaly detected your HFM client version as: ") + version +
        lineBreaks + QStringLiteral("Please download and install the appropriate version from: ") +
        QStringLiteral("Oracle Software Delivery Cloud");
    return {QStringLiteral("Incompatible HFM Version Error"), text, Prompt::Icon::Critical,
            Prompt::Buttons::Ok};
}

/// Whether the client will do. If not, the user has been told.
bool acceptsClient(Services &services, ErrorLog &log)
{
    try {
        const QString version = GetHFMVersion(0, services, log);
        if (isSupportedVersion(version))
            return true;
        services.prompts.ask(incompatibleVersion(version));
    } catch (...) {
        report(QStringLiteral("Main"), RuntimeError::caught(), services.prompts, log);
    }
    return false;
}

} // namespace

void startUp(Services &services, const StartUpWindows &windows)
{
    ErrorLog log(errorLogPath(services.programFolder));
    if (!acceptsClient(services, log)) {
        services.program.end(0);
        return;
    }
    // The splash, or a dialog of the logon, closes while there is no other window yet. That is not
    // the last one.
    const QEventLoopLocker programGoesOn;
    services.trap.run(windows.showSplash);
    services.trap.run(windows.showMainWindow);
}

QString errorLogPath(const QString &programFolder)
{
    return programFolder + QStringLiteral("/tessalyerror.log");
}

QString GetHFMVersion(qint16 selector, Services &services, ErrorLog &log)
{
    try {
        const auto information = services.clients.createVersionInformation();
        if (!information)
            throw RuntimeError(ObjectVariableNotSet);
        information->SetVersionSelector(selector);
        return information->GetVersion();
    } catch (...) {
        report(QStringLiteral("GetHFMVersion"), RuntimeError::caught(), services.prompts, log);
        return QStringLiteral("00.00.00");
    }
}

bool isSupportedVersion(const QString &version)
{
    const VersionPieces pieces(version);
    Counter16 twoParts(qint64(10) * pieces.at(0));
    twoParts += pieces.at(1);
    // Only asks for a third piece, and for its fitting in; the value itself is not used.
    Counter16 threeParts(qint64(100) * pieces.at(0));
    threeParts += Counter16(qint64(10) * pieces.at(1)).value();
    threeParts += pieces.at(2);

    if (twoParts.value() == 0)
        throw RuntimeError(invalidVersion, QStringLiteral("Tessaly (Main)"),
                           QStringLiteral("Invalid Version Returned from GetVersion()"));
    // 405 is compared with the two parts on purpose: a 4.0.5 client, whose two parts are 40, is
    // refused like every other 4.0.
    return twoParts.value() >= 41 || twoParts.value() == 405;
}
