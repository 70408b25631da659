#include "hfm/offline/dlgOfflineOpen.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStringListModel>
#include <QVBoxLayout>

#include <algorithm>

namespace hfm::offline {

namespace {

/// The selected lines of a list, one a line, in the list's order.
void copySelection(const QListView &list)
{
    QModelIndexList rows = list.selectionModel()->selectedIndexes();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex &row : rows)
        lines.append(row.data().toString());
    if (!lines.isEmpty())
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

/// The summary of an application with many lists may be longer than the dialog is high.
QScrollArea *scrolled(QLabel *label)
{
    auto *area = new QScrollArea(label->parentWidget());
    area->setObjectName(QStringLiteral("scrApplicationSummary"));
    area->setWidget(label);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

} // namespace

dlgOfflineOpen::dlgOfflineOpen(const QString &clusterFolder, const Clock &clock, ErrorTrap &trap,
                               QWidget *parent)
    : QDialog(parent), mChoices(clusterFolder, clock), mNames(new QStringListModel(this)),
      mWarningLines(new QStringListModel(this)), mApplications(new QListView(this)),
      mSummary(new QLabel(this)), mWarnings(new QListView(this)), mOk(new QPushButton(this)),
      mCancel(new QPushButton(this))
{
    setObjectName(QStringLiteral("dlgOfflineOpen"));
    setWindowTitle(tr("Open Application"));
    makeControls(clusterFolder);
    arrangeControls();
    connectControls(trap);
    trap.run([this] { mApplications->setCurrentIndex(mNames->index(0)); });
}

void dlgOfflineOpen::makeControls(const QString &clusterFolder)
{
    mNames->setStringList(mChoices.names());
    mApplications->setObjectName(QStringLiteral("lstApplications"));
    mApplications->setAccessibleName(tr("Applications"));
    mApplications->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mApplications->setUniformItemSizes(true);
    mApplications->setModel(mNames);

    mSummary->setObjectName(QStringLiteral("lblApplicationSummary"));
    mSummary->setAccessibleName(tr("What the application holds"));
    mSummary->setTextFormat(Qt::PlainText);
    mSummary->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    mSummary->setWordWrap(true);
    mSummary->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    mSummary->setText(tr("There is no application in the folder '%1'.")
                          .arg(QDir::toNativeSeparators(clusterFolder)));

    mWarnings->setObjectName(QStringLiteral("lstWarnings"));
    mWarnings->setAccessibleName(tr("Warnings"));
    mWarnings->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mWarnings->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mWarnings->setUniformItemSizes(true);
    mWarnings->setModel(mWarningLines);

    mOk->setObjectName(QStringLiteral("cmdOpenOk"));
    mOk->setText(tr("OK"));
    mOk->setDefault(true);
    mOk->setEnabled(false);
    mCancel->setObjectName(QStringLiteral("cmdOpenCancel"));
    mCancel->setText(tr("Cancel"));
}

void dlgOfflineOpen::arrangeControls()
{
    auto *applicationsLabel = new QLabel(tr("&Applications:"), this);
    applicationsLabel->setBuddy(mApplications);
    auto *warningsLabel = new QLabel(tr("&Warnings:"), this);
    warningsLabel->setBuddy(mWarnings);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(mOk, QDialogButtonBox::AcceptRole);
    buttons->addButton(mCancel, QDialogButtonBox::RejectRole);

    auto *grid = new QGridLayout;
    grid->addWidget(applicationsLabel, 0, 0);
    grid->addWidget(mApplications, 1, 0);
    mSummaryArea = scrolled(mSummary);
    grid->addWidget(mSummaryArea, 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 2);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid, 3);
    layout->addWidget(warningsLabel);
    layout->addWidget(mWarnings, 1);
    layout->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 100, fontMetrics().lineSpacing() * 40);
    mApplications->setFocus();
}

void dlgOfflineOpen::connectControls(ErrorTrap &trap)
{
    trap.connect(mApplications->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                 [this] { showSelected(); });
    trap.connect(mApplications, &QListView::doubleClicked, this, [this] { confirm(); });
    trap.connect(mOk, &QPushButton::clicked, this, [this] { confirm(); });
    trap.connect(mCancel, &QPushButton::clicked, this, [this] { reject(); });
    // The label has the focus, so that its text can be copied, and leaves these keys alone.
    scrollSummaryBy(trap, QKeySequence::MoveToPreviousPage, QAbstractSlider::SliderPageStepSub);
    scrollSummaryBy(trap, QKeySequence::MoveToNextPage, QAbstractSlider::SliderPageStepAdd);
    addMenuOfWarnings(trap);
}

void dlgOfflineOpen::scrollSummaryBy(ErrorTrap &trap, QKeySequence::StandardKey key,
                                     QAbstractSlider::SliderAction action)
{
    auto *shortcut = new QShortcut(key, mSummary, nullptr, nullptr, Qt::WidgetShortcut);
    trap.connect(shortcut, &QShortcut::activated, this,
                 [this, action] { mSummaryArea->verticalScrollBar()->triggerAction(action); });
}

void dlgOfflineOpen::addMenuOfWarnings(ErrorTrap &trap)
{
    auto *copy = new QAction(tr("&Copy"), mWarnings);
    copy->setObjectName(QStringLiteral("mnuCopyWarnings"));
    copy->setShortcut(QKeySequence::Copy);
    auto *selectAll = new QAction(tr("Select &All"), mWarnings);
    selectAll->setObjectName(QStringLiteral("mnuSelectAllWarnings"));
    selectAll->setShortcut(QKeySequence::SelectAll);
    for (QAction *action : {copy, selectAll}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        mWarnings->addAction(action);
    }
    mWarnings->setContextMenuPolicy(Qt::ActionsContextMenu);
    trap.connect(copy, &QAction::triggered, this, [this] { copySelection(*mWarnings); });
    trap.connect(selectAll, &QAction::triggered, this, [this] { mWarnings->selectAll(); });
}

/// A row can be deselected, with Ctrl held; then there is nothing to open.
void dlgOfflineOpen::showSelected()
{
    mApplication.reset(); // two large applications need not be in memory at a time
    const QModelIndexList selected = mApplications->selectionModel()->selectedRows();
    if (selected.isEmpty()) {
        tell({nullptr, tr("No application is selected."), {}});
        return;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto pointerBack = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    tell(mChoices.read(selected.first().row()));
}

void dlgOfflineOpen::tell(const ApplicationPreview &preview)
{
    mApplication = preview.application;
    mSummary->setText(preview.summary);
    mWarningLines->setStringList(preview.warnings);
    mOk->setEnabled(mApplication != nullptr);
}

void dlgOfflineOpen::confirm()
{
    if (mApplication != nullptr)
        accept();
}

} // namespace hfm::offline
