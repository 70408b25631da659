#pragma once

#include "hfm/Dimension.h"
#include "hfm/Security.h"

namespace hfm {

/// Where an open application is and what is stored beside its data.
class SystemInformation
{
public:
    virtual ~SystemInformation() = default;
    virtual QString GetClusterName() = 0;
    virtual QString GetApplicationName() = 0;
    virtual MemberListFile GetMemberListFile() = 0;
};

/// An open application's metadata.
class Metadata
{
public:
    virtual ~Metadata() = default;
    virtual std::shared_ptr<Dimension> GetScenarioDimension() = 0;
    virtual std::shared_ptr<Dimension> GetYearDimension() = 0;
    virtual std::shared_ptr<Dimension> GetPeriodDimension() = 0;
    virtual std::shared_ptr<Dimension> GetViewDimension() = 0;
    virtual std::shared_ptr<Dimension> GetEntityDimension() = 0;
    virtual std::shared_ptr<Dimension> GetValueDimension() = 0;
    virtual std::shared_ptr<Dimension> GetAccountDimension() = 0;
    virtual std::shared_ptr<Dimension> GetICPDimension() = 0;
    virtual std::shared_ptr<Dimension> GetCustom1Dimension() = 0;
    virtual std::shared_ptr<Dimension> GetCustom2Dimension() = 0;
    virtual std::shared_ptr<Dimension> GetCustom3Dimension() = 0;
    virtual std::shared_ptr<Dimension> GetCustom4Dimension() = 0;
    /// The names of the languages that descriptions are stored in; a language's index is its
    /// 0-based position here.
    virtual QList<QString> GetLanguages() = 0;
};

/// An open application. Its objects stay valid for as long as anyone holds them, whatever becomes
/// of the session.
class Session
{
public:
    virtual ~Session() = default;
    virtual std::shared_ptr<SystemInformation> GetSystemInfo() = 0;
    virtual std::shared_ptr<Metadata> GetMetadata() = 0;
    virtual std::shared_ptr<Security> GetSecurity() = 0;
};

} // namespace hfm
