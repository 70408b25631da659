#include "runtime/Required.h"
#include "shell/frmLastingHourglass.h"
#include "viewer/frmMetadataViewer.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Adds entries behind those that are there. What stands in the box stays.
void append(QComboBox *combo, const QStringList &entries)
{
    const int index = combo->currentIndex();
    const QString text = combo->currentText();
    combo->addItems(entries);
    combo->setCurrentIndex(index);
    combo->setEditText(text);
}

} // namespace

// The tree is cleared first, then built. Where HFM fails in between, what was built is shown.
void frmMetadataViewer::LoadMemberTree()
{
    showTree(nullptr);
    frmLastingHourglass hourglass(this);
    mTotalMembers = 1; // the total shown is one more than the number of occurrences: kept
    const auto tree = std::make_shared<MemberTree>();
    {
        MemberPaths paths;
        paths.read(required(mGlobal.gDimension));
        mTotalMembers += paths.count();
        MemberTexts nodeTexts = texts();
        const auto shown = qScopeGuard([&] { showTree(tree); });
        tree->build(paths, [&](hfm::MemberId id) { return nodeTexts.GetMemberNodeText(id); });
    }
    mMaxLevel = tree->maxLevel();
    mTopMemberLevels = 1;
    LoadEntityFilterLists();
    hourglass.done();
}

void frmMetadataViewer::LoadFilteredEntities()
{
    mTotalMembers = 0;
    mMaxLevel = 1;
    frmLastingHourglass hourglass(this);
    showTree(nullptr);
    const QList<hfm::MemberId> entities = required(mGlobal.gDimension).EnumAllMembers();
    const auto list = std::make_shared<MemberTree>();
    {
        MemberTexts nodeTexts = texts();
        const auto shown = qScopeGuard([&] { showTree(list); });
        list->buildList(entities,
                        [&](hfm::MemberId id) { return nodeTexts.GetMemberNodeText(id); });
    }
    mTotalMembers = list->count();
    SetTitles();
    hourglass.done();
}

void frmMetadataViewer::showTree(std::shared_ptr<const MemberTree> tree)
{
    mMembers.show(std::move(tree));
    mControls.members->setCurrentIndex(mMembers.index(0, 0));
}

/// The lists are never cleared: each rebuild of the tree appends the same entries again. Kept.
void frmMetadataViewer::LoadEntityFilterLists()
{
    if (mGlobal.gDimensionName != "ENTITY"_L1)
        return;
    mGlobal.gSecurity = required(mGlobal.gSession).GetSecurity();
    append(mControls.securityClassFilter,
           EntityFilterLists::securityClasses(required(mGlobal.gSecurity)));
    const auto value = required(mGlobal.gMetadata).GetValueDimension();
    append(mControls.currencyFilter, EntityFilterLists::currencies(required(value)));
}

bool frmMetadataViewer::filtersAreOn() const
{
    return mControls.entityFilterSwitch->checkedId() == FiltersOn;
}

MemberTexts frmMetadataViewer::texts() const
{
    MemberTextOptions options;
    options.showAttributes = mControls.showAttributes->checkedId() == ShowAttributes;
    options.expandedAttributes = mControls.expandedAttributes->isChecked();
    options.filter = {filtersAreOn(), mControls.currencyFilter->currentText(),
                      mControls.securityClassFilter->currentText()};
    return MemberTexts(mGlobal, options);
}

void frmMetadataViewer::rebuild()
{
    if (filtersAreOn())
        LoadFilteredEntities();
    else
        LoadMemberTree();
}
