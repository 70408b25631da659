#include "hfm/offline/OfflineSession.h"

#include "hfm/offline/OfflineDimension.h"
#include "hfm/offline/OfflineSecurity.h"

namespace hfm::offline {

namespace {

class OfflineSystemInformation final : public SystemInformation
{
public:
    OfflineSystemInformation(std::shared_ptr<const Application> application, QString clusterName)
        : mApplication(std::move(application)), mClusterName(std::move(clusterName))
    {
    }

    QString GetClusterName() override { return mClusterName; }
    QString GetApplicationName() override { return mApplication->files.name; }
    MemberListFile GetMemberListFile() override { return mApplication->memberListFile; }

private:
    std::shared_ptr<const Application> mApplication;
    QString mClusterName;
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
    // One object a dimension: tools ask for the same few once for every member.
    Answer dimension(DimensionKind kind)
    {
        Answer &answer = mAnswers[size_t(kind)];
        if (!answer)
            answer = std::make_shared<OfflineDimension>(mApplication, kind);
        return answer;
    }

    std::shared_ptr<const Application> mApplication;
    std::array<Answer, allDimensionKinds.size()> mAnswers;
};

} // namespace

OfflineSession::OfflineSession(std::shared_ptr<const Application> application, QString clusterName)
    : mApplication(std::move(application)), mClusterName(std::move(clusterName))
{
}

std::shared_ptr<SystemInformation> OfflineSession::GetSystemInfo()
{
    return std::make_shared<OfflineSystemInformation>(mApplication, mClusterName);
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
