#include "support/FakeHfm.h"

#include "support/FakeSession.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using State = std::shared_ptr<FakeHfm::State>;

class FakeVersionInformation final : public hfm::VersionInformation
{
public:
    explicit FakeVersionInformation(State state) : mState(std::move(state)) {}

    void SetVersionSelector(qint16 selector) override
    {
        mState->calls->enter("SetVersionSelector"_L1);
        mState->selectors.append(selector);
    }
    QString GetVersion() override
    {
        mState->calls->enter("GetVersion"_L1);
        return mState->version;
    }

private:
    State mState;
};

class FakeLogonUserInterface final : public hfm::LogonUserInterface
{
public:
    explicit FakeLogonUserInterface(State state) : mState(std::move(state)) {}

    hfm::LogonInfo GetLogonInfo() override
    {
        mState->calls->enter("GetLogonInfo"_L1);
        return mInfo;
    }
    void setInfo(const hfm::LogonInfo &info) { mInfo = info; }

private:
    State mState;
    hfm::LogonInfo mInfo;
};

bool nextAnswer(QList<bool> &answers)
{
    return answers.isEmpty() || answers.takeFirst();
}

class FakeClient final : public hfm::Client
{
public:
    explicit FakeClient(State state) : mState(std::move(state)) {}

    void Initialize(std::shared_ptr<hfm::LogonUserInterface> userInterface) override
    {
        mState->calls->enter("Initialize"_L1);
        mUserInterface = std::dynamic_pointer_cast<FakeLogonUserInterface>(userInterface);
    }
    bool Logon(bool silent) override
    {
        mState->calls->enter("Logon"_L1);
        mState->silentLogons.append(silent);
        if (!mUserInterface)
            throw RuntimeError(ObjectVariableNotSet);
        if (!nextAnswer(mState->logonAnswers))
            return false;
        mUserInterface->setInfo(mState->logonInfo);
        return true;
    }
    bool OpenApplication(hfm::OpenedApplication &opened, QString &cluster,
                         QString &application) override
    {
        mState->calls->enter("OpenApplication"_L1);
        mState->openedWith.append({cluster, application});
        cluster = mState->application->clusterName;
        application = mState->application->applicationName;
        if (!nextAnswer(mState->openAnswers))
            return false;
        opened = {mState->application->openedName, makeFakeSession(mState->application),
                  makeFakeSession(mState->application)};
        return true;
    }

private:
    State mState;
    std::shared_ptr<FakeLogonUserInterface> mUserInterface;
};

} // namespace

FakeApplication::FakeApplication(std::shared_ptr<FakeCalls> sharedCalls)
    : calls(std::move(sharedCalls)), security(std::make_shared<FakeSecurity>(calls))
{
    for (int kind = 0; kind < fakeKindCount; ++kind)
        dimensions[size_t(kind)] = std::make_shared<FakeDimension>(FakeKind(kind), calls);
}

FakeHfm::FakeHfm() : mState(std::make_shared<State>())
{
    newApplication();
}

FakeApplication &FakeHfm::newApplication()
{
    mState->application = std::make_shared<FakeApplication>(mState->calls);
    return *mState->application;
}

std::shared_ptr<hfm::Session> FakeHfm::openSession()
{
    return makeFakeSession(mState->application);
}

std::unique_ptr<hfm::VersionInformation> FakeHfm::createVersionInformation()
{
    calls().enter("createVersionInformation"_L1);
    return std::make_unique<FakeVersionInformation>(mState);
}

std::shared_ptr<hfm::LogonUserInterface> FakeHfm::createLogonUserInterface()
{
    calls().enter("createLogonUserInterface"_L1);
    return std::make_shared<FakeLogonUserInterface>(mState);
}

std::shared_ptr<hfm::Client> FakeHfm::createClient()
{
    calls().enter("createClient"_L1);
    return std::make_shared<FakeClient>(mState);
}
