#pragma once

#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>

/// The main window's controls and menus: made, captioned and laid out.
struct frmMainControls
{
    /// Fills `window`, which owns all of it.
    explicit frmMainControls(QMainWindow *window);

    QAction *mnuLogon;
    QAction *mnuExit;
    QAction *mnuHFMHelp;
    QAction *mnuHelpAbout;

    QWidget *body;
    QPushButton *cmdLogon;
    QPushButton *cmdExit;
    QPushButton *cmdApplicationInfo;
    QPushButton *cmdScripting;
    QLabel *lblLanguages;
    QComboBox *cboLanguages;
    QLabel *lblHelpText;

    QGroupBox *frmDimensionActionItems;
    QLabel *lblSetDimension;
    QComboBox *cboSetDimension;
    QPushButton *cmdExtractMetadata;
    QPushButton *cmdMemberListBuilder;
    QPushButton *cmdMetadataViewer;

    QLabel *statusPanel;

private:
    void fillDimensionList();
    void makeStatusBar(QMainWindow *window);
    void layOut(QMainWindow *window);
    void setTabOrder();
};
