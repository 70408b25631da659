#include "support/FakeSession.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Application = std::shared_ptr<FakeApplication>;
using Dimension = std::shared_ptr<hfm::Dimension>;

class FakeSystemInformation final : public hfm::SystemInformation
{
public:
    explicit FakeSystemInformation(Application application) : mApplication(std::move(application))
    {
    }

    QString GetClusterName() override
    {
        mApplication->calls->enter("GetClusterName"_L1);
        return mApplication->clusterName;
    }
    QString GetApplicationName() override
    {
        mApplication->calls->enter("GetApplicationName"_L1);
        return mApplication->applicationName;
    }
    hfm::MemberListFile GetMemberListFile() override
    {
        mApplication->calls->enter("GetMemberListFile"_L1);
        return mApplication->memberListFile;
    }

private:
    Application mApplication;
};

class FakeMetadata final : public hfm::Metadata
{
public:
    explicit FakeMetadata(Application application) : mApplication(std::move(application)) {}

    Dimension GetScenarioDimension() override
    {
        return get("GetScenarioDimension"_L1, FakeKind::Scenario);
    }
    Dimension GetYearDimension() override { return get("GetYearDimension"_L1, FakeKind::Year); }
    Dimension GetPeriodDimension() override
    {
        return get("GetPeriodDimension"_L1, FakeKind::Period);
    }
    Dimension GetViewDimension() override { return get("GetViewDimension"_L1, FakeKind::View); }
    Dimension GetEntityDimension() override
    {
        return get("GetEntityDimension"_L1, FakeKind::Entity);
    }
    Dimension GetValueDimension() override { return get("GetValueDimension"_L1, FakeKind::Value); }
    Dimension GetAccountDimension() override
    {
        return get("GetAccountDimension"_L1, FakeKind::Account);
    }
    Dimension GetICPDimension() override { return get("GetICPDimension"_L1, FakeKind::ICP); }
    Dimension GetCustom1Dimension() override
    {
        return get("GetCustom1Dimension"_L1, FakeKind::Custom1);
    }
    Dimension GetCustom2Dimension() override
    {
        return get("GetCustom2Dimension"_L1, FakeKind::Custom2);
    }
    Dimension GetCustom3Dimension() override
    {
        return get("GetCustom3Dimension"_L1, FakeKind::Custom3);
    }
    Dimension GetCustom4Dimension() override
    {
        return get("GetCustom4Dimension"_L1, FakeKind::Custom4);
    }
    QList<QString> GetLanguages() override
    {
        mApplication->calls->enter("GetLanguages"_L1);
        return mApplication->languages;
    }

private:
    Dimension get(QLatin1StringView operation, FakeKind kind)
    {
        mApplication->calls->enter(operation);
        return mApplication->dimensions[size_t(kind)];
    }

    Application mApplication;
};

class FakeSession final : public hfm::Session
{
public:
    explicit FakeSession(Application application) : mApplication(std::move(application)) {}

    std::shared_ptr<hfm::SystemInformation> GetSystemInfo() override
    {
        mApplication->calls->enter("GetSystemInfo"_L1);
        return std::make_shared<FakeSystemInformation>(mApplication);
    }
    std::shared_ptr<hfm::Metadata> GetMetadata() override
    {
        mApplication->calls->enter("GetMetadata"_L1);
        return std::make_shared<FakeMetadata>(mApplication);
    }
    std::shared_ptr<hfm::Security> GetSecurity() override
    {
        mApplication->calls->enter("GetSecurity"_L1);
        return mApplication->security;
    }

private:
    Application mApplication;
};

} // namespace

std::shared_ptr<hfm::Session> makeFakeSession(std::shared_ptr<FakeApplication> application)
{
    return std::make_shared<FakeSession>(std::move(application));
}
