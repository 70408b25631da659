#pragma once

#include <QDialog>

/// What the program is, in its own words.
class frmAbout final : public QDialog
{
    Q_OBJECT

public:
    explicit frmAbout(QWidget *owner);

private:
    void makeControls();
};
