#include "shell/frmSplash.h"

#include "shell/frmIdentity.h"
#include "shell/Identity.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>

namespace {

QLabel *makeLabel(const QString &name, const QString &text, qreal sizeFactor, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * sizeFactor);
    font.setBold(sizeFactor > 2);
    label->setFont(font);
    return label;
}

} // namespace

frmSplash::frmSplash(Services &services)
    : QFrame(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), mServices(services)
{
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(Identity::title());
    setWindowIcon(frmIdentity::icon());
    setWindowModality(Qt::ApplicationModal);
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    makeControls();
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
}

void frmSplash::makeControls()
{
    auto *texts = new QVBoxLayout;
    texts->addWidget(makeLabel(QStringLiteral("lblProductName"), Identity::title(), 2.8, this));
    texts->addWidget(makeLabel(QStringLiteral("lblVersion"), Identity::versionText(), 1.2, this));
    texts->addSpacing(fontMetrics().height());
    texts->addStretch();
    frmIdentity::addDisclaimer(texts, this);

    auto *layout = new QHBoxLayout(this);
    const int margin = fontMetrics().height() * 3 / 2;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addWidget(frmIdentity::makeLogo(9, this), 0, Qt::AlignVCenter);
    layout->addLayout(texts, 1);
}

void frmSplash::showModal()
{
    constexpr int tickMilliseconds = 100;
    QTimer tick; // wakes the loop to look at the clock
    tick.start(tickMilliseconds);

    mWait.start(mServices.clock.now().time());
    show(); // handles events, maybe a click already
    while (isWaiting())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    close();
}

bool frmSplash::isWaiting() const
{
    return isVisible() && !mServices.program.isEnding() &&
           !mWait.isOver(mServices.clock.now().time());
}

void frmSplash::endWait()
{
    mWait.cutShort(mServices.clock.now().time());
}

void frmSplash::mouseReleaseEvent(QMouseEvent *event)
{
    // Clicks on the labels arrive here too.
    mServices.trap.run([this] { endWait(); });
    event->accept();
}
