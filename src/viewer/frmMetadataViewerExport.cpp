#include "shell/frmLastingHourglass.h"
#include "shell/SpreadsheetExport.h"
#include "viewer/frmMetadataViewer.h"
#include "viewer/TreeExport.h"

#include <QButtonGroup>

void frmMetadataViewer::ExportTreeToExcel()
{
    frmLastingHourglass hourglass(this);
    const bool showsAttributes = mControls.showAttributes->checkedId() == ShowAttributes;
    const bool writesAttributes =
        showsAttributes &&
        mServices.prompts.ask(TreeExport::attributesQuestion()) == Prompts::Answer::Yes;
    SpreadsheetExport::run(mServices, [&](Worksheet &sheet) {
        const bool isWhole = !mControls.members->isHidden();
        const qint32 top = isWhole ? MemberTree::none : mTopMember.node(mTopMember.index(0, 0));
        const MemberTreeModel &shown = isWhole ? mMembers : mTopMember;
        TreeExport tree(sheet, {.tree = shown.tree().get(),
                                .top = top,
                                .levels = isWhole ? mMaxLevel : mTopMemberLevels,
                                .maxLevel = mMaxLevel,
                                .showsAttributes = showsAttributes,
                                .writesAttributes = writesAttributes});
        tree.writeHeader();
        visibleTree()->expandBelow({});
        tree.writeNodes();
    });
    hourglass.done();
}
