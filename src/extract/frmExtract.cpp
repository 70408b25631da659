#include "extract/frmExtract.h"

#include "extract/frmDrvDirFil.h"
#include "runtime/Required.h"
#include "shell/frmHourglass.h"
#include "shell/frmLargeText.h"
#include "shell/frmTabControls.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace TabControls;

namespace {

constexpr char tagProperty[] = "Tag";

QLineEdit *makeLineEdit(const char *name, const QString &text)
{
    auto *edit = new QLineEdit(text);
    edit->setObjectName(QLatin1StringView(name));
    return edit;
}

QLabel *makeCaption(const char *name, const QString &text, QWidget *buddy)
{
    QLabel *label = makeLabel(nullptr, name, text);
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
    mDimension = makeHeading(nullptr, "lblDimension");
    mUseIndicators = makeOptionGroup(this, "optUseIndicators",
                                     {u"&Use Indicators"_s, u"&Don't Use Indicators"_s});
    mParentIndicator = makeLineEdit("txtParentIndicator", u"Dynamic"_s);
    mBaseIndicator = makeLineEdit("txtBaseIndicator", u"Store"_s);
    mDelimeters = makeOptionGroup(this, "optDelimeter", {u"C&omma"_s, u"&Tab"_s});
    mDelimeters->button(0)->setProperty(tagProperty, u"COMMA"_s);
    mDelimeters->button(1)->setProperty(tagProperty, u"TAB"_s);
    mExtract = makeButton(nullptr, "cmdExtract", u"Run &Extract"_s);
    mText = makeReport(mServices.trap, nullptr, "txtParentChild", u"Extract"_s);
    mShowHeaderRow = makeCheckBox(nullptr, "chkHeaderRow", u"Show &Header Row"_s);
    mSave = makeButton(nullptr, "cmdSaveExtract", u"&Save"_s);
    mApplicationPanel = makeStatusPanel(statusBar());
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
    options->addWidget(makeCaption("lblParentIndicator", u"Parent Indicator:"_s, mParentIndicator),
                       0, 1);
    options->addWidget(mParentIndicator, 0, 2);
    options->addWidget(mUseIndicators->button(1), 1, 0);
    options->addWidget(makeCaption("lblChildIndicator", u"Base Indicator:"_s, mBaseIndicator), 1,
                       1);
    options->addWidget(mBaseIndicator, 1, 2);

    auto *run = new QHBoxLayout;
    run->addWidget(makeCaption("lblDelimeter", u"Delimeter:"_s, mDelimeters->button(0)));
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
