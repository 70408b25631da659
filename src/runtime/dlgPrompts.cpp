#include "runtime/dlgPrompts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

namespace {

using Answer = Prompts::Answer;

QMessageBox::Icon iconOf(Prompt::Icon icon)
{
    switch (icon) {
    case Prompt::Icon::Critical:
        return QMessageBox::Critical;
    case Prompt::Icon::Question:
        return QMessageBox::Question;
    case Prompt::Icon::Exclamation:
        return QMessageBox::Warning;
    case Prompt::Icon::Information:
        return QMessageBox::Information;
    case Prompt::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

/// The buttons in their order; the first is the default one, the last answers a closed box.
struct Choice
{
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton first;
    QMessageBox::StandardButton last;
};

Choice choiceOf(Prompt::Buttons buttons)
{
    switch (buttons) {
    case Prompt::Buttons::OkCancel:
        return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel};
    case Prompt::Buttons::YesNo:
        return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
    case Prompt::Buttons::Ok:
        break;
    }
    return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

Answer answerOf(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Cancel:
        return Answer::Cancel;
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Ok;
    }
}

QString withPlainLineBreaks(QString text)
{
    text.replace(QLatin1StringView("\r\n"), QLatin1StringView("\n"));
    return text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

} // namespace

Answer dlgPrompts::ask(const Prompt &prompt)
{
    const auto [buttons, first, last] = choiceOf(prompt.buttons);
    if (mProgram.isEnding())
        return answerOf(last);

    // The window below may be deleted while the box is open, and the box with it.
    QPointer<QMessageBox> box = new QMessageBox(QApplication::activeWindow());
    box->setWindowTitle(prompt.title);
    box->setIcon(iconOf(prompt.icon));
    box->setTextFormat(Qt::PlainText);
    box->setText(withPlainLineBreaks(prompt.text));
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setStandardButtons(buttons);
    box->setDefaultButton(first);
    box->setEscapeButton(last);
    const bool isUnderHourglass = QGuiApplication::overrideCursor();
    if (isUnderHourglass)
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    box->exec();
    if (isUnderHourglass)
        QGuiApplication::restoreOverrideCursor();

    // No button was clicked when the program ended under the open box.
    const bool chosen = box && box->clickedButton();
    const Answer answer = answerOf(chosen ? box->standardButton(box->clickedButton()) : last);
    delete box;
    return answer;
}
