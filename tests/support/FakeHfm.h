#pragma once

#include "hfm/Client.h"
#include "support/FakeDimension.h"
#include "support/FakeSecurity.h"

/// An application of the fake client: empty dimensions, one language, no security, no member list
/// file, until a test sets them.
struct FakeApplication
{
    explicit FakeApplication(std::shared_ptr<FakeCalls> calls);

    FakeDimension &dimension(FakeKind kind) { return *dimensions[size_t(kind)]; }
    FakeDimension &account() { return dimension(FakeKind::Account); }
    FakeDimension &entity() { return dimension(FakeKind::Entity); }
    FakeDimension &value() { return dimension(FakeKind::Value); }
    /// `number` 1 to 4.
    FakeDimension &custom(int number)
    {
        return *dimensions[size_t(FakeKind::Custom1) + number - 1];
    }

    std::shared_ptr<FakeCalls> calls;
    std::array<std::shared_ptr<FakeDimension>, fakeKindCount> dimensions;
    std::shared_ptr<FakeSecurity> security;
    QStringList languages = {QStringLiteral("English")};
    QString clusterName = QStringLiteral("Cluster");
    QString applicationName = QStringLiteral("Comma"); ///< as the system information names it
    QString openedName = QStringLiteral("Comma");      ///< as opening names it
    hfm::MemberListFile memberListFile;
};

/// A whole HFM client without HFM. Every operation is noted in calls(), and fails where calls()
/// is told so.
class FakeHfm final : public hfm::ClientFactory
{
public:
    FakeHfm();

    FakeCalls &calls() { return *mState->calls; }
    /// The application that OpenApplication opens. A session keeps the one it was opened with.
    FakeApplication &application() { return *mState->application; }
    /// Replaces application() by a new empty one.
    FakeApplication &newApplication();
    void setVersion(const QString &version) { mState->version = version; }
    void setLogonInfo(const hfm::LogonInfo &info) { mState->logonInfo = info; }
    /// The answers of the next calls of Logon and of OpenApplication; True where none is left.
    QList<bool> &logonAnswers() { return mState->logonAnswers; }
    QList<bool> &openAnswers() { return mState->openAnswers; }
    /// What was passed to SetVersionSelector and to Logon, in order.
    const QList<qint16> &selectors() const { return mState->selectors; }
    const QList<bool> &silentLogons() const { return mState->silentLogons; }
    /// The two strings of each OpenApplication, as they were passed. The fake fills both in.
    const QList<QStringList> &openedWith() const { return mState->openedWith; }

    /// A session on application(), without a logon.
    std::shared_ptr<hfm::Session> openSession();

    std::unique_ptr<hfm::VersionInformation> createVersionInformation() override;
    std::shared_ptr<hfm::LogonUserInterface> createLogonUserInterface() override;
    std::shared_ptr<hfm::Client> createClient() override;

    /// What the client's objects share; they may outlive the FakeHfm.
    struct State
    {
        std::shared_ptr<FakeCalls> calls = std::make_shared<FakeCalls>();
        std::shared_ptr<FakeApplication> application;
        QString version = QStringLiteral("11.1.2");
        hfm::LogonInfo logonInfo = {QStringLiteral("admin"), QStringLiteral("detail"), false};
        QList<bool> logonAnswers;
        QList<bool> openAnswers;
        QList<qint16> selectors;
        QList<bool> silentLogons;
        QList<QStringList> openedWith;
    };

private:
    std::shared_ptr<State> mState;
};
