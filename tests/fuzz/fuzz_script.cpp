// Any bytes as a member list file: it names lists and makes them, or a warning says why not.

#include "hfm/offline/AppFile.h"
#include "hfm/offline/Application.h"
#include "hfm/offline/UserLists.h"

#include <QBuffer>

#include <cstdlib>

using namespace hfm::offline;

namespace {

const char metadata[] = R"(!CURRENCIES
EUR;0
!MEMBERS=Entity
GROUP;EUR;Y;N;N;SC;Holding;;x y;HOLDCO;;DefaultParent=#root
EAST;EUR;N;N;N;;;;;;;DefaultParent=GROUP
E1;EUR;N;Y;Y;;one;US;;;;DefaultParent=EAST
HOLDCO;EUR;N;N;N;;;;;;;DefaultParent=GROUP
!HIERARCHIES=Entity
;GROUP
GROUP;EAST
EAST;E1
GROUP;HOLDCO
!MEMBERS=Account
SALES;REVENUE;DefaultParent=#root
!HIERARCHIES=Account
;SALES
)";

void promise(bool kept)
{
    if (!kept)
        std::abort();
}

std::shared_ptr<const Application> applicationWith(const QByteArray &memberLists)
{
    QByteArray text(metadata);
    QBuffer file(&text);
    file.open(QIODevice::ReadOnly);
    Warnings warnings;
    ApplicationDraft draft(warnings);
    readMetadataFile(file, draft);
    draft.memberListFile = {memberLists, 1};
    return finishApplication(draft, {}, 2012);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, size_t size)
{
    const auto application =
        applicationWith(QByteArray(reinterpret_cast<const char *>(bytes), qsizetype(size)));
    // Less than a run may have, so that many scripts are tried in little time.
    hfm::offline::script::Limits limits;
    limits.steps = 20'000;
    limits.memory = qint64(8) << 20;
    UserLists lists(*application, limits);
    const qint64 found = lists.check().count();
    for (const DimensionKind kind : allDimensionKinds) {
        hfm::ListId last = 0;
        for (const UserList &list : lists.lists(kind)) {
            promise(list.id > last && lists.find(kind, list.name) == list.id);
            last = list.id;
            const auto members = lists.members(kind, list.id);
            promise(members.has_value());
            for (const hfm::MemberId member : *members)
                promise(application->dimension(kind).isMember(member));
        }
        promise(!lists.members(kind, last + 1));
    }
    const auto warnings = lists.check().list();
    promise(lists.check().count() >= found);
    for (const Warning &warning : warnings)
        promise(!warning.text.isEmpty());
    return 0;
}
