#include "shell/frmIdentity.h"

#include "shell/Identity.h"

#include <QBoxLayout>

// The pictures stand in a static library, whose resources Qt does not register by itself. The
// macro must be used outside any namespace.
static void registerPictures()
{
    Q_INIT_RESOURCE(shell);
}

namespace frmIdentity {

QIcon icon()
{
    registerPictures();
    return QIcon(QStringLiteral(":/shell/images/tessaly.svg"));
}

QLabel *makeLogo(int lines, QWidget *parent)
{
    auto *logo = new QLabel(parent);
    const int side = logo->fontMetrics().height() * lines;
    logo->setObjectName(QStringLiteral("picLogo"));
    logo->setAccessibleName(Identity::title());
    logo->setPixmap(icon().pixmap(QSize(side, side), logo->devicePixelRatio()));
    return logo;
}

void addDisclaimer(QBoxLayout *layout, QWidget *parent)
{
    auto *lines = new QVBoxLayout;
    lines->setSpacing(parent->fontMetrics().descent());
    int index = 0;
    for (const QString &line : Identity::disclaimer()) {
        auto *label = new QLabel(line, parent);
        label->setObjectName(QStringLiteral("lblWarning_%1").arg(index++));
        lines->addWidget(label);
    }
    layout->addLayout(lines);
}

} // namespace frmIdentity
