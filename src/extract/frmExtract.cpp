#include "extract/frmExtract.h"

#include "extract/frmDrvDirFil.h"
#include "runtime/Required.h"
#include "shell/frmHourglass.h"
#include "shell/frmLargeText.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr char tagProperty[] = "Tag";

/// Option buttons `name`_0, `name`_1, ..., of which one is chosen.
QButtonGroup *makeOptions(const QString &name, const QStringList &captions, QObject *parent)
{
    auto *group = new QButtonGroup(parent);
    for (int i = 0; i < captions.size(); ++i) {
        auto *button = new QRadioButton(captions[i]);
        button->setObjectName(name + u'_' + QString::number(i));
        group->addButton(button, i);
    }
    return group;
}

QLineEdit *makeLineEdit(const QString &name, const QString &text)
{
    auto *edit = new QLineEdit(text);
    edit->setObjectName(name);
    return edit;
}

QLabel *makeCaption(const QString &name, const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text);
    label->setObjectName(name);
    label->setBuddy(buddy);
    return label;
}

} // namespace

frmExtract::frmExtract(Services &services, modGlobal &global, QWidget *parent)
    : QMainWindow(parent), mServices(services), mGlobal(global)
{
    setObjectName(u"frmExtract"_s);
    setWindowTitle(u"Tessaly - Extracts"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    mGlobal.gExtractText.clear();
    mGlobal.gExtractTextWithHeader.clear();
    makeControls();
    makeMenu();
    arrangeControls();
    connectControls();

    mApplicationPanel->setText(ExtractRules::applicationPanel(mGlobal.gApplicationName));
    hfm::Dimension &dimension = required(mGlobal.gDimension);
    mDimension->setText(ExtractRules::dimensionCaption(dimension.GetDimensionName()));
    mDelimeters->button(0)->setChecked(true);
    mUseIndicators->button(1)->setChecked(true);
}

void frmExtract::DoExtract()
{
    applyDelimiter(*mDelimeters->button(0));
}

void frmExtract::closeEvent(QCloseEvent *event)
{
    if (mIsRunning) {
        event->ignore();
        return;
    }
    mGlobal.gExtractText.clear();
    mGlobal.gExtractTextWithHeader.clear();
    event->accept();
}

void frmExtract::makeControls()
{
    mDimension = new QLabel;
    mDimension->setObjectName(u"lblDimension"_s);
    mDimension->setTextFormat(Qt::PlainText);
    QFont heading = mDimension->font();
    heading.setBold(true);
    mDimension->setFont(heading);
    mUseIndicators = makeOptions(u"optUseIndicators"_s,
                                 {u"&Use Indicators"_s, u"&Don't Use Indicators"_s}, this);
    mParentIndicator = makeLineEdit(u"txtParentIndicator"_s, u"Dynamic"_s);
    mBaseIndicator = makeLineEdit(u"txtBaseIndicator"_s, u"Store"_s);
    mDelimeters = makeOptions(u"optDelimeter"_s, {u"C&omma"_s, u"&Tab"_s}, this);
    mDelimeters->button(0)->setProperty(tagProperty, u"COMMA"_s);
    mDelimeters->button(1)->setProperty(tagProperty, u"TAB"_s);
    mExtract = new QPushButton(u"Run &Extract"_s);
    mExtract->setObjectName(u"cmdExtract"_s);
    mText = new LargeTextView(mServices.trap);
    mText->setObjectName(u"txtParentChild"_s);
    mText->setAccessibleName(u"Extract"_s);
    mShowHeaderRow = new QCheckBox(u"Show &Header Row"_s);
    mShowHeaderRow->setObjectName(u"chkHeaderRow"_s);
    mSave = new QPushButton(u"&Save"_s);
    mSave->setObjectName(u"cmdSaveExtract"_s);

    statusBar()->setObjectName(u"sbStatusBar"_s);
    mApplicationPanel = new QLabel;
    mApplicationPanel->setObjectName(u"sbStatusBar_1"_s);
    mApplicationPanel->setTextFormat(Qt::PlainText);
    mApplicationPanel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(mApplicationPanel, 1);
}

void frmExtract::makeMenu()
{
    QMenu *file = menuBar()->addMenu(u"&File"_s);
    file->setObjectName(u"mnuFile"_s);
    QAction *closeEntry = file->addAction(u"&Close"_s);
    closeEntry->setObjectName(u"mnuClose"_s);
    QAction *exitEntry = file->addAction(u"&Exit Tessaly"_s);
    exitEntry->setObjectName(u"mnuExit"_s);
    mServices.trap.connect(closeEntry, &QAction::triggered, this, [this] { close(); });
    mServices.trap.connect(exitEntry, &QAction::triggered, this,
                           [this] { mServices.program.end(0); });
}

void frmExtract::arrangeControls()
{
    auto *options = new QGridLayout;
    options->addWidget(mUseIndicators->button(0), 0, 0);
    options->addWidget(
        makeCaption(u"lblParentIndicator"_s, u"Parent Indicator:"_s, mParentIndicator), 0, 1);
    options->addWidget(mParentIndicator, 0, 2);
    options->addWidget(mUseIndicators->button(1), 1, 0);
    options->addWidget(makeCaption(u"lblChildIndicator"_s, u"Base Indicator:"_s, mBaseIndicator), 1,
                       1);
    options->addWidget(mBaseIndicator, 1, 2);

    auto *run = new QHBoxLayout;
    run->addWidget(makeCaption(u"lblDelimeter"_s, u"Delimeter:"_s, mDelimeters->button(0)));
    run->addWidget(mDelimeters->button(0));
    run->addWidget(mDelimeters->button(1));
    run->addStretch();
    run->addWidget(mExtract);

    auto *save = new QHBoxLayout;
    save->addWidget(mShowHeaderRow);
    save->addStretch();
    save->addWidget(mSave);

    auto *layout = new QVBoxLayout;
    layout->addWidget(mDimension);
    layout->addLayout(options);
    layout->addLayout(run);
    layout->addWidget(mText, 1);
    layout->addLayout(save);
    auto *content = new QWidget;
    content->setLayout(layout);
    setCentralWidget(content);
    resize(120 * fontMetrics().averageCharWidth(), 38 * fontMetrics().lineSpacing());

    const QList<QWidget *> order = {mUseIndicators->button(0),
                                    mUseIndicators->button(1),
                                    mParentIndicator,
                                    mBaseIndicator,
                                    mDelimeters->button(0),
                                    mDelimeters->button(1),
                                    mExtract,
                                    mText,
                                    mShowHeaderRow,
                                    mSave};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void frmExtract::connectControls()
{
    ErrorTrap &trap = mServices.trap;
    trap.connect(mExtract, &QPushButton::clicked, this, [this] { runExtract(); });
    for (QAbstractButton *option : mDelimeters->buttons())
        trap.connect(option, &QAbstractButton::clicked, this,
                     [this, option] { delimiterClicked(*option); });
    trap.connect(mShowHeaderRow, &QCheckBox::clicked, this, [this] { headerRowClicked(); });
    trap.connect(mSave, &QPushButton::clicked, this, [this] { saveExtract(); });
}

void frmExtract::runExtract()
{
    if (mIsRunning)
        return;
    const QScopedValueRollback running(mIsRunning, true);
    const frmHourglass hourglass(this);
    mText->clear();
    // The emptied box is to be seen. The user's input waits: a second run cannot start in here,
    // nor the window be closed.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    DoExtract();
}

void frmExtract::delimiterClicked(const QAbstractButton &option)
{
    const frmHourglass hourglass(this);
    applyDelimiter(option);
}

void frmExtract::applyDelimiter(const QAbstractButton &option)
{
    const QString tag = option.property(tagProperty).toString();
    const auto indicators = ExtractRules::indicatorsFor(tag, choices());
    if (!indicators) {
        mServices.prompts.ask(ExtractRules::unknownDelimiter());
        return;
    }
    build(*indicators);
    mText->setText(ExtractRules::textWhenBuilt(
        {mGlobal.gExtractText, mGlobal.gExtractTextWithHeader}, mShowHeaderRow->isChecked()));
}

void frmExtract::headerRowClicked()
{
    const frmHourglass hourglass(this);
    const bool headerRow = mShowHeaderRow->isChecked();
    if (mGlobal.gExtractText.isEmpty()) {
        // Nothing is shown of an extract that nobody ran, unless there is nothing but its header.
        build({});
        if (!mGlobal.gExtractText.isEmpty())
            return;
    }
    mText->setText(ExtractRules::textForHeaderRow(
        {mGlobal.gExtractText, mGlobal.gExtractTextWithHeader}, headerRow));
}

void frmExtract::saveExtract()
{
    mGlobal.gSaveFilePattern = u"*.txt"_s;
    mGlobal.gSaveMode = u"METADATAEXTRACT"_s;
    mGlobal.gPendingText = mText->text();
    (new frmDrvDirFil(mServices, mGlobal, this))->show();
}

void frmExtract::build(const ExtractIndicators &indicators)
{
    mGlobal.gExtractText.clear();
    mGlobal.gExtractTextWithHeader.clear();
    hfm::Dimension &dimension = required(mGlobal.gDimension);
    ExtractTexts texts = buildExtract(dimension, mGlobal.gLanguageIndex, indicators);
    mGlobal.gExtractText = std::move(texts.rows);
    mGlobal.gExtractTextWithHeader = std::move(texts.rowsWithHeader);
}

ExtractRules::Choices frmExtract::choices() const
{
    return {mUseIndicators->button(0)->isChecked(),
            {mParentIndicator->text(), mBaseIndicator->text()}};
}
