#include "shell/frmAbout.h"

#include "shell/frmIdentity.h"
#include "shell/Identity.h"

#include <QGridLayout>
#include <QPushButton>

namespace {

QLabel *makeLabel(const QString &name, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

QFrame *makeSeparator(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}

} // namespace

frmAbout::frmAbout(QWidget *owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Tessaly"));
    setWindowIcon(frmIdentity::icon());
    makeControls();
}

void frmAbout::makeControls()
{
    QLabel *title = makeLabel(QStringLiteral("lblTitle"), Identity::title(), this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    title->setFont(font);

    auto *texts = new QVBoxLayout;
    texts->addWidget(title);
    texts->addWidget(makeLabel(QStringLiteral("lblVersion"), Identity::versionText(), this));
    texts->addWidget(makeSeparator(this));
    texts->addWidget(makeLabel(QStringLiteral("lblDescription"), Identity::description(), this), 1);
    texts->addWidget(makeSeparator(this));
    frmIdentity::addDisclaimer(texts, this);

    auto *ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setAccessibleName(ok->text());
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto *layout = new QGridLayout(this);
    layout->addWidget(frmIdentity::makeLogo(6, this), 0, 0, Qt::AlignTop);
    layout->addLayout(texts, 0, 1);
    layout->addWidget(ok, 1, 1, Qt::AlignRight);
    layout->setHorizontalSpacing(fontMetrics().height());
    layout->setVerticalSpacing(fontMetrics().height());
}
