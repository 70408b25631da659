#pragma once

#include <QIcon>
#include <QLabel>

class QBoxLayout;

/// What the windows show of the program's identity.
namespace frmIdentity {

/// The program's icon. Empty where Qt's SVG plugin is not installed.
QIcon icon();

/// A label `picLogo` with the program's mark, `lines` text lines high.
QLabel *makeLogo(int lines, QWidget *parent);

/// Adds the disclaimer's labels, `lblWarning_0` and on.
void addDisclaimer(QBoxLayout *layout, QWidget *parent);

} // namespace frmIdentity
