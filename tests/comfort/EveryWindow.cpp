#include "EveryWindow.h"

#include "appinfo/frmApplicationInfo.h"
#include "extract/frmDrvDirFil.h"
#include "extract/frmExtract.h"
#include "hfm/offline/dlgOfflineLogon.h"
#include "hfm/offline/dlgOfflineOpen.h"
#include "listbuilder/frmMemberListBuilder.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "viewer/frmMetadataViewer.h"

using namespace Qt::StringLiterals;

namespace {

QWidget *noTool()
{
    return nullptr;
}

} // namespace

EveryWindow::EveryWindow() : mOwner(std::make_unique<QWidget>())
{
    mFake.services.programFolder = QStringLiteral(TESSALY_SAMPLES);
    FakeDimension &entity = mFake.hfm.application().entity();
    entity.setMembers(u"GROUP|Group\n  EAST|East\n    E1|Unit 1\n  WEST|West\n    E1"_s);
    FakeDimension &account = mFake.hfm.application().account();
    account.setMembers(u"PL|Result\n  SALES|Sales\n  COST|Costs"_s);
    account.addUserList(u"Key figures"_s, {u"PL"_s, u"SALES"_s});
    mGlobal.gSession = mFake.hfm.openSession();
    mGlobal.gMetadata = mGlobal.gSession->GetMetadata();
    mGlobal.gApplicationName = u"Comma"_s;
}

QStringList EveryWindow::names()
{
    return {
        u"frmSplash"_s,  u"dlgOfflineLogon"_s,   u"dlgOfflineOpen"_s,     u"frmMain"_s,
        u"frmAbout"_s,   u"frmMetadataViewer"_s, u"frmApplicationInfo"_s, u"frmMemberListBuilder"_s,
        u"frmExtract"_s, u"frmDrvDirFil"_s};
}

QWidget *EveryWindow::made(const QString &name)
{
    const bool isForAccounts = name == "frmMemberListBuilder"_L1;
    mGlobal.gDimension =
        mFake.hfm.application()
            .dimensions[size_t(isForAccounts ? FakeKind::Account : FakeKind::Entity)];
    mGlobal.gDimensionName = isForAccounts ? u"ACCOUNT"_s : u"ENTITY"_s;

    const QString cluster = QStringLiteral(TESSALY_SAMPLES "/Alderbrook");
    if (name == "frmSplash"_L1)
        return new frmSplash(mFake.services);
    if (name == "dlgOfflineLogon"_L1)
        return new hfm::offline::dlgOfflineLogon({cluster}, u"analyst"_s, mFake.trap);
    if (name == "dlgOfflineOpen"_L1)
        return new hfm::offline::dlgOfflineOpen(cluster, mFake.clock, mFake.trap);
    if (name == "frmMain"_L1)
        return new frmMain(mGlobal, mFake.services, {noTool, noTool, noTool, noTool});
    if (name == "frmAbout"_L1)
        return new frmAbout(mOwner.get());
    if (name == "frmMetadataViewer"_L1)
        return new frmMetadataViewer(mFake.services, mGlobal);
    if (name == "frmApplicationInfo"_L1)
        return new frmApplicationInfo(mFake.services, mGlobal);
    if (name == "frmMemberListBuilder"_L1)
        return new frmMemberListBuilder(mFake.services, mGlobal);
    if (name == "frmExtract"_L1)
        return new frmExtract(mFake.services, mGlobal);
    if (name == "frmDrvDirFil"_L1)
        return new frmDrvDirFil(mFake.services, mGlobal);
    return nullptr;
}

std::unique_ptr<QWidget> EveryWindow::open(const QString &name)
{
    std::unique_ptr<QWidget> window(made(name));
    if (window)
        window->show();
    return window;
}
