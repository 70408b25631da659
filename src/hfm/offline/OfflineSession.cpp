#include "hfm/offline/OfflineSession.h"

#include "hfm/offline/OfflineDimension.h"
#include "hfm/offline/OfflineSecurity.h"

namespace hfm::offline {

namespace {

class OfflineSystemInformation final : public SystemInformation
{
public:
    OfflineSystemInformation(QString clusterName, QString applicationName)
        : mClusterName(std::move(clusterName)), mApplicationName(std::move(applicationName))
    {
    }

    QString GetClusterName() override { return mClusterName; }
    QString GetApplicationName() override { return mApplicationName; }
    MemberListFile GetMemberListFile() override { return {}; }

private:
    QString mClusterName;
    QString mApplicationName;
};

class OfflineMetadata final : public Metadata
{
public:
    explicit OfflineMetadata(std::shared_ptr<const Application> application)
        : mApplication(std::move(application))
    {
    }

    using Answer = std::shared_ptr<Dimension>;
    Answer GetScenarioDimension() override { return dimension(DimensionKind::Scenario); }
    Answer GetYearDimension() override { return dimension(DimensionKind::Year); }
    Answer GetPeriodDimension() override { return dimension(DimensionKind::Period); }
    Answer GetViewDimension() override { return dimension(DimensionKind::View); }
    Answer GetEntityDimension() override { return dimension(DimensionKind::Entity); }
    Answer GetValueDimension() override { return dimension(DimensionKind::Value); }
    Answer GetAccountDimension() override { return dimension(DimensionKind::Account); }
    Answer GetICPDimension() override { return dimension(DimensionKind::ICP); }
    Answer GetCustom1Dimension() override { return dimension(DimensionKind::Custom1); }
    Answer GetCustom2Dimension() override { return dimension(DimensionKind::Custom2); }
    Answer GetCustom3Dimension() override { return dimension(DimensionKind::Custom3); }
    Answer GetCustom4Dimension() override { return dimension(DimensionKind::Custom4); }
    QList<QString> GetLanguages() override { return mApplication->languages; }

private:
    Answer dimension(DimensionKind kind) const
    {
        return std::make_shared<OfflineDimension>(mApplication, kind);
    }

    std::shared_ptr<const Application> mApplication;
};

} // namespace

OfflineSession::OfflineSession(std::shared_ptr<const Application> application, QString clusterName)
    : mApplication(std::move(application)), mClusterName(std::move(clusterName))
{
}

std::shared_ptr<SystemInformation> OfflineSession::GetSystemInfo()
{
    return std::make_shared<OfflineSystemInformation>(mClusterName, mApplication->files.name);
}

std::shared_ptr<Metadata> OfflineSession::GetMetadata()
{
    return std::make_shared<OfflineMetadata>(mApplication);
}

std::shared_ptr<Security> OfflineSession::GetSecurity()
{
    return std::make_shared<OfflineSecurity>(mApplication);
}

} // namespace hfm::offline
