#include "shell/frmLargeTextFind.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>

LargeTextFindBar::LargeTextFindBar(QWidget *parent)
    : QWidget(parent), mWords(new QLineEdit),
      mMatchCase(new QCheckBox(QStringLiteral("&Match case"))), mOutcome(new QLabel)
{
    setObjectName(QStringLiteral("fraFind"));
    setAutoFillBackground(true);
    // A click on the bar must not put the focus into the text behind it.
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(mWords);

    auto *const caption = new QLabel(QStringLiteral("Fi&nd:"));
    caption->setObjectName(QStringLiteral("lblFind"));
    caption->setBuddy(mWords);
    mWords->setObjectName(QStringLiteral("txtFind"));
    mWords->setAccessibleName(QStringLiteral("Find"));
    mMatchCase->setObjectName(QStringLiteral("chkMatchCase"));
    mMatchCase->setAccessibleName(QStringLiteral("Match case"));
    mOutcome->setObjectName(QStringLiteral("lblFindOutcome"));

    auto *const row = new QHBoxLayout(this);
    const int gap = style()->pixelMetric(QStyle::PM_DefaultFrameWidth) +
                    style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
    row->setContentsMargins(gap, gap, gap, gap);
    row->addWidget(caption);
    row->addWidget(mWords, 2);
    QToolButton *const previous = addButton(
        QStringLiteral("cmdFindPrevious"), QStringLiteral("Pre&vious"), QStringLiteral("Previous"));
    QToolButton *const next =
        addButton(QStringLiteral("cmdFindNext"), QStringLiteral("Ne&xt"), QStringLiteral("Next"));
    row->addWidget(mMatchCase);
    row->addWidget(mOutcome, 1);
    QToolButton *const close =
        addButton(QStringLiteral("cmdFindClose"), QString(), QStringLiteral("Close"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(QStringLiteral("Close"));

    connect(mWords, &QLineEdit::textEdited, mOutcome, &QLabel::clear);
    connect(next, &QToolButton::clicked, this, &LargeTextFindBar::nextWanted);
    connect(previous, &QToolButton::clicked, this, &LargeTextFindBar::previousWanted);
    connect(close, &QToolButton::clicked, this, &LargeTextFindBar::closeWanted);
}

QToolButton *LargeTextFindBar::addButton(const QString &name, const QString &text,
                                         const QString &accessibleName)
{
    auto *const button = new QToolButton;
    button->setObjectName(name);
    button->setText(text);
    button->setAccessibleName(accessibleName);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    layout()->addWidget(button);
    return button;
}

QString LargeTextFindBar::words() const
{
    return mWords->text();
}

void LargeTextFindBar::setWords(const QString &words)
{
    mWords->setText(words);
}

Qt::CaseSensitivity LargeTextFindBar::sensitivity() const
{
    return mMatchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

void LargeTextFindBar::setOutcome(const QString &outcome)
{
    mOutcome->setText(outcome);
}

void LargeTextFindBar::activate()
{
    mOutcome->clear();
    mWords->setFocus(Qt::ShortcutFocusReason);
    mWords->selectAll();
}

void LargeTextFindBar::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeWanted();
    else if (isEnter && event->modifiers().testFlag(Qt::ShiftModifier))
        Q_EMIT previousWanted();
    else if (isEnter)
        Q_EMIT nextWanted();
    // Every key ends here: what the words have no use for must not move the text behind them.
    event->accept();
}
