#pragma once

#include <QString>

/// A question or a message for the user, as a message box shows it.
struct Prompt
{
    enum class Icon { None, Critical, Question, Exclamation, Information };
    enum class Buttons { Ok, OkCancel, YesNo };

    QString title;
    /// Line breaks are those the caller wrote: CR, LF or CR LF. A box shows each as one line break.
    QString text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;

    friend bool operator==(const Prompt &, const Prompt &) = default;
};

/// Asks the user and waits for the answer.
class Prompts
{
public:
    enum class Answer { Ok, Cancel, Yes, No };

    virtual ~Prompts() = default;
    /// Shows the prompt modally and returns the chosen button. A box that is closed without a
    /// choice answers Cancel where there is that button, No where there are Yes and No, else Ok.
    virtual Answer ask(const Prompt &prompt) = 0;
};

/// The title of a box that is given none: the program's name.
inline QString defaultPromptTitle()
{
    return QStringLiteral("Tessaly");
}
