#include "shell/Logon.h"

#include "runtime/Required.h"

#include <QRegularExpression>

namespace {

bool wantsToTryAgain(Prompts &prompts)
{
    return prompts.ask({QStringLiteral("Error Opening HFM"),
                        QStringLiteral("Error Opening HFM.  Would you like to try again?"),
                        Prompt::Icon::Critical, Prompt::Buttons::YesNo}) == Prompts::Answer::Yes;
}

bool logOnUser(const modGlobal &state, Prompts &prompts)
{
    while (!required(state.gClient).Logon(false))
        if (!wantsToTryAgain(prompts))
            return false;
    return true;
}

bool openApplication(modGlobal &state, Prompts &prompts)
{
    hfm::OpenedApplication opened;
    QString cluster;
    QString application;
    while (!required(state.gClient).OpenApplication(opened, cluster, application)) {
        if (!wantsToTryAgain(prompts))
            return false;
        cluster.clear();
        application.clear();
    }
    state.gApplicationName = opened.applicationName;
    state.gSession = opened.session;
    state.gSessionAux = opened.auxiliarySession;
    return true;
}

QString statusText(const modGlobal &state, QTime time)
{
    return QStringLiteral("Cluster: ") + state.gClusterName + QStringLiteral(" * Application: ") +
           state.gSysApplicationName + QStringLiteral(" * User: ") + state.gUserName +
           QStringLiteral(" * Logged On: ") + timeOfDayText(time, QLocale::system());
}

} // namespace

bool logOn(modGlobal &state, Services &services, LogonDisplay &display)
{
    state.gClientUI = services.clients.createLogonUserInterface();
    state.gClient = services.clients.createClient();
    required(state.gClient).Initialize(state.gClientUI);
    if (!logOnUser(state, services.prompts) || !openApplication(state, services.prompts))
        return false;

    const hfm::LogonInfo info = required(state.gClientUI).GetLogonInfo();
    state.gUserName = info.userName;
    state.gLogonDetail = info.detail;
    const std::shared_ptr<hfm::SystemInformation> system = required(state.gSession).GetSystemInfo();
    state.gClusterName = required(system).GetClusterName();
    state.gSysApplicationName = required(system).GetApplicationName();
    display.showStatus(statusText(state, services.clock.now().time()));
    state.gMetadata = required(state.gSession).GetMetadata();
    display.enableApplication();
    display.addLanguages(required(state.gMetadata).GetLanguages());
    return true;
}

QString timeOfDayText(QTime time, const QLocale &locale)
{
    // In a locale's full form the zone stands as " t", ", t", " (t)" or " [t]", or first of all; a
    // quoted part is text, where a t is just a letter.
    static const QRegularExpression zone(
        QStringLiteral("('[^']*')|,?\\s*(?:\\(t+\\)|\\[t+\\]|t+)\\s*"));
    const QString format = locale.timeFormat(QLocale::LongFormat);
    return locale.toString(time, QString(format).replace(zone, QStringLiteral("\\1")).trimmed());
}
