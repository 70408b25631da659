// Exports an application's dimensions to workbooks, for a script that lays out the same from the
// application's file. The names of the workbooks say what they hold.
//
//   export_application APPLICATION.app FOLDER

#include "appinfo/ApplicationDimensions.h"
#include "appinfo/MemberListExport.h"
#include "appinfo/MemberLists.h"
#include "appinfo/ParentLabels.h"
#include "appinfo/SecurityAccess.h"
#include "appinfo/SecurityExport.h"
#include "appinfo/WorkbookFile.h"
#include "hfm/offline/OfflineSession.h"
#include "shell/ListMembers.h"
#include "viewer/MemberTexts.h"
#include "viewer/TopMemberView.h"
#include "viewer/TreeExport.h"

#include <QDir>
#include <QFileInfo>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<hfm::Session> sessionOf(const QString &file)
{
    const QFileInfo info(file);
    for (const hfm::offline::ApplicationFiles &files :
         hfm::offline::findApplications(info.absolutePath()))
        if (QFileInfo(files.metadata) == info)
            return std::make_shared<hfm::offline::OfflineSession>(
                hfm::offline::readApplication(files, 2012), QString());
    qFatal("there is no application %s", qPrintable(file));
}

class Exports
{
public:
    Exports(const QString &application, const QString &folder) : mFolder(folder)
    {
        mGlobal.gSession = sessionOf(application);
        mGlobal.gMetadata = mGlobal.gSession->GetMetadata();
        mGlobal.gSecurity = mGlobal.gSession->GetSecurity();
    }

    void exportDimension(ApplicationDimension kind)
    {
        mWord = ApplicationDimensions::word(kind);
        mGlobal.gDimension = ApplicationDimensions::get(*mGlobal.gMetadata, kind);
        mGlobal.gDimensionName = mWord.toUpper();
        const auto shown = build({.showAttributes = true});
        exportTree(u"attributes "_s + mWord, *shown, MemberTree::none, true, true);
        exportTree(u"unwanted "_s + mWord, *shown, MemberTree::none, true, false);
        exportTree(u"labels "_s + mWord, *build({.showAttributes = false}), MemberTree::none, false,
                   false);
        exportList({});
        if (const auto top = firstParent(*shown)) {
            const QString label = shown->label(*top);
            exportTree(u"attributes %1 below %2"_s.arg(mWord, label), *shown, *top, true, true);
            exportList(label);
        }
    }

    /// Users and roles go by their positions: their names need not be names of files.
    void exportSecurity()
    {
        hfm::Security &security = *mGlobal.gSecurity;
        const QStringList classes = security.EnumSecurityClasses().names;
        for (const QString &name : classes)
            exportAnswer(u"class "_s + name, SecurityAccess::ofClass(security, name));
        const QStringList users = security.EnumRoleUsers(0).names;
        for (qsizetype i = 0; i < users.size(); ++i)
            exportAnswer(u"user %1"_s.arg(i), SecurityAccess::ofUser(security, users[i]));
        const QStringList roles = security.EnumUserRoles(0).names;
        for (qsizetype i = 0; i < roles.size(); ++i)
            exportAnswer(u"role %1"_s.arg(i), SecurityAccess::ofRole(security, roles[i]));
    }

private:
    std::unique_ptr<MemberTree> build(const MemberTextOptions &options)
    {
        MemberTexts texts(mGlobal, options);
        MemberPaths paths;
        paths.read(*mGlobal.gDimension);
        auto tree = std::make_unique<MemberTree>();
        tree->build(paths, [&](hfm::MemberId member) { return texts.GetMemberNodeText(member); });
        return tree;
    }

    static std::optional<qint32> firstParent(const MemberTree &tree)
    {
        for (qint32 node = 0; node < tree.count(); ++node)
            if (tree.childCount(node) > 0)
                return node;
        return std::nullopt;
    }

    void exportTree(const QString &name, const MemberTree &tree, qint32 top, bool shows,
                    bool writes)
    {
        const bool isWhole = top == MemberTree::none;
        const qint32 levels =
            isWhole ? tree.maxLevel() : TopMemberView::below(tree, top).generations + 1;
        save(name, [&](Worksheet &sheet) {
            TreeExport rows(sheet, {&tree, top, levels, tree.maxLevel(), shows, writes});
            rows.writeHeader();
            rows.writeNodes();
        });
    }

    void exportList(const QString &top)
    {
        const auto members = MemberLists::members(*mGlobal.gDimension, u"[Base]"_s, top);
        const QString name = u"base list "_s + mWord;
        save(top.isEmpty() ? name : name + u" below "_s + top, [&](Worksheet &sheet) {
            MemberListExport::write(sheet, ListMembers::heading(mWord, u"[Base]"_s, members.size()),
                                    top, ListMembers::lines(*mGlobal.gDimension, members));
        });
    }

    void exportAnswer(const QString &name, const SecurityAccess::Columns &answer)
    {
        save(name,
             [&](Worksheet &sheet) { SecurityExport::write(sheet, answer.first, answer.second); });
    }

    void save(const QString &name, const std::function<void(Worksheet &)> &write)
    {
        WorkbookFile workbook(QDir(mFolder).filePath(name));
        write(workbook.addWorksheet());
        workbook.complete();
    }

    QString mFolder;
    QString mWord;
    modGlobal mGlobal;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        qFatal("usage: export_application APPLICATION.app FOLDER");
    const QString folder = QString::fromLocal8Bit(argv[2]);
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    Exports exports(QString::fromLocal8Bit(argv[1]), folder);
    for (int i = 0; i < ApplicationDimensions::analysedCount; ++i)
        exports.exportDimension(ApplicationDimension(i));
    exports.exportSecurity();
    return 0;
}
