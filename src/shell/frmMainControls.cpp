#include "shell/frmMainControls.h"

#include "shell/Dimensions.h"
#include "shell/frmTabControls.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QMenuBar>

using namespace TabControls;

namespace {

QAction *addEntry(QMenu *menu, const char *name, const QString &caption)
{
    QAction *entry = menu->addAction(caption);
    entry->setObjectName(QLatin1StringView(name));
    return entry;
}

QMenu *addMenu(QMainWindow *window, const char *name, const QString &caption)
{
    QMenu *menu = window->menuBar()->addMenu(caption);
    menu->setObjectName(QLatin1StringView(name));
    return menu;
}

QPushButton *makeButton(QWidget *parent, const char *name, const QString &caption,
                        const QString &toolTip)
{
    QPushButton *button = TabControls::makeButton(parent, name, caption);
    button->setToolTip(toolTip);
    return button;
}

} // namespace

frmMainControls::frmMainControls(QMainWindow *window)
{
    QMenu *mnuFile = addMenu(window, "mnuFile", QStringLiteral("&File"));
    mnuLogon = addEntry(mnuFile, "mnuLogon", QStringLiteral("(Re) &Logon"));
    mnuExit = addEntry(mnuFile, "mnuExit", QStringLiteral("E&xit Tessaly"));
    QMenu *mnuHelp = addMenu(window, "mnuHelp", QStringLiteral("&Help"));
    mnuHFMHelp = addEntry(mnuHelp, "mnuHFMHelp", QStringLiteral("&Tessaly Help"));
    mnuHelpAbout = addEntry(mnuHelp, "mnuHelpAbout", QStringLiteral("&About Tessaly..."));

    body = new QWidget(window);
    cmdLogon = makeButton(body, "cmdLogon", QStringLiteral("(Re) &Logon"),
                          QStringLiteral("Logon and Connect to Hyperion Financial Management"));
    cmdExit = makeButton(body, "cmdExit", QStringLiteral("E&xit"),
                         QStringLiteral("Exit the Application"));
    cmdApplicationInfo = makeButton(
        body, "cmdApplicationInfo", QStringLiteral("A&pplication Info"),
        QStringLiteral("Module that provides general or dimension specific information"));
    cmdScripting = makeButton(body, "cmdScripting", QStringLiteral("Generate &Scripts"));
    lblLanguages = makeLabel(body, "lblLanguages", QStringLiteral("Language:"));
    cboLanguages = makeList(lblLanguages, "cboLanguages");
    lblHelpText = makeLabel(body, "lblHelpText",
                            QStringLiteral("Put help text in here explaining how these utilities "
                                           "are somtimes used, etc..."));

    frmDimensionActionItems = new QGroupBox(QStringLiteral(" Dimensional Modules "), body);
    frmDimensionActionItems->setObjectName(QStringLiteral("frmDimensionActionItems"));
    QWidget *const frame = frmDimensionActionItems;
    lblSetDimension = makeLabel(frame, "lblSetDimension", QStringLiteral("Set Dimension:"));
    cboSetDimension = makeList(lblSetDimension, "cboSetDimension");
    cmdExtractMetadata =
        makeButton(frame, "cmdExtractMetadata", QStringLiteral("&Extract Metadata"),
                   QStringLiteral("Flat File Metadata extract functionality"));
    cmdMemberListBuilder =
        makeButton(frame, "cmdMemberListBuilder", QStringLiteral("&Member List Builder"),
                   QStringLiteral("Utilitiy module that allows you to create static member lists"));
    cmdMetadataViewer =
        makeButton(frame, "cmdMetadataViewer", QStringLiteral("Metadata &Viewer"),
                   QStringLiteral("Hierarchical member list viewer with Export to Excel"));

    fillDimensionList();
    makeStatusBar(window);
    layOut(window);
    setTabOrder();
}

void frmMainControls::fillDimensionList()
{
    cboSetDimension->setEditable(true);
    cboSetDimension->setInsertPolicy(QComboBox::NoInsert);
    cboSetDimension->setMaxVisibleItems(int(Dimensions::names().size()));
    // The text is what the user typed. Qt would complete it, and would take leaving it for a
    // choice where it happens to be an entry's to the letter.
    cboSetDimension->setCompleter(nullptr);
    QObject::disconnect(cboSetDimension->lineEdit(), &QLineEdit::editingFinished, cboSetDimension,
                        nullptr);
    cboSetDimension->addItems(Dimensions::names());
    cboSetDimension->setCurrentIndex(-1);
}

void frmMainControls::makeStatusBar(QMainWindow *window)
{
    statusPanel = makeStatusPanel(window->statusBar());
    statusPanel->setText(QStringLiteral("Status"));
    statusPanel->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

void frmMainControls::layOut(QMainWindow *window)
{
    auto *dimension = new QGridLayout(frmDimensionActionItems);
    dimension->addWidget(lblSetDimension, 0, 0);
    dimension->addWidget(cboSetDimension, 0, 1);
    dimension->addWidget(cmdExtractMetadata, 1, 0, 1, 2);
    dimension->addWidget(cmdMemberListBuilder, 2, 0, 1, 2);
    dimension->addWidget(cmdMetadataViewer, 3, 0, 1, 2);
    dimension->setColumnStretch(1, 1);

    auto *language = new QHBoxLayout;
    language->addWidget(lblLanguages);
    language->addWidget(cboLanguages, 1);

    auto *commands = new QVBoxLayout;
    commands->addWidget(cmdLogon);
    commands->addWidget(cmdApplicationInfo);
    commands->addWidget(cmdScripting);
    commands->addStretch();
    commands->addWidget(cmdExit);

    auto *layout = new QGridLayout(body);
    layout->addLayout(language, 0, 0);
    layout->addWidget(frmDimensionActionItems, 1, 0);
    layout->addLayout(commands, 0, 2, 2, 1);
    layout->addWidget(lblHelpText, 2, 0, 1, 3);
    layout->setColumnStretch(0, 1);
    layout->setColumnMinimumWidth(1, window->fontMetrics().height() / 2);
    layout->setRowStretch(3, 1);
    lblHelpText->setWordWrap(true);
    window->setCentralWidget(body);
}

void frmMainControls::setTabOrder()
{
    QWidget *const order[] = {cboSetDimension,    cmdExtractMetadata, cmdMemberListBuilder,
                              cmdMetadataViewer,  cboLanguages,       cmdLogon,
                              cmdApplicationInfo, cmdScripting,       cmdExit};
    for (size_t i = 1; i < std::size(order); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
    cboSetDimension->setFocus();
}
