// How long a text box takes to show an extract of 1,200,000 rows: the text set and first painted.
// Beside it one copy of the same bytes, and the toolkit's own text box.

#include "shell/frmLargeText.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPlainTextEdit>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

namespace {

constexpr int rows = 1'200'000;
constexpr int rounds = 5;

class NoPrompts final : public Prompts
{
public:
    Answer ask(const Prompt &) override { return Answer::Ok; }
};

class NoProgram final : public Program
{
public:
    void end(int exitCode) override { std::exit(exitCode); }
    bool isEnding() const override { return false; }
};

QString extractText()
{
    QString text;
    text.reserve(rows * 104LL);
    for (int row = 0; row < rows; ++row) {
        const QString number = QString::number(1'000'000 + row);
        const QString parent = QString::number(1'000'000 + row / 12);
        text += QStringLiteral("\"ENT_%1\",\"Subsidiary number %1, \",\"ENT_%2\",\"Subsidiary "
                               "number %2, region North\",\"Store\"\r\n")
                    .arg(parent, number);
    }
    return text;
}

/// The fastest of some rounds, in milliseconds.
template <typename Action>
double milliseconds(int times, Action action)
{
    double best = 1e300;
    for (int round = 0; round < times; ++round) {
        QElapsedTimer timer;
        timer.start();
        action();
        best = std::min(best, double(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

template <typename Box, typename Show>
double timeToShow(Box &box, int times, Show show)
{
    box.resize(900, 600);
    box.show();
    QCoreApplication::processEvents();
    return milliseconds(times, [&] {
        show();
        QCoreApplication::processEvents();
        box.repaint();
        box.grab();
    });
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QString text = extractText();
    const std::size_t bytes = std::size_t(text.size()) * sizeof(QChar);

    std::vector<char> copy(bytes);
    const double copying =
        milliseconds(rounds, [&] { std::memcpy(copy.data(), text.constData(), bytes); });
    qsizetype found = 0;
    const double indexing = milliseconds(rounds, [&] { found += TextLines(text).count(); });

    NoPrompts prompts;
    NoProgram program;
    ErrorTrap trap(prompts, program);
    LargeTextView view(trap);
    const double showing = timeToShow(view, rounds, [&] { view.setText(text); });

    QPlainTextEdit edit;
    edit.setReadOnly(true);
    edit.setLineWrapMode(QPlainTextEdit::NoWrap);
    const double plain = timeToShow(edit, 1, [&] { edit.setPlainText(text); });

    const QString miss = QStringLiteral("no such member");
    const double forward = milliseconds(
        rounds, [&] { found += TextSearch::forward(text, miss, text.size() / 2).match.end; });
    const double backward = milliseconds(
        rounds, [&] { found += TextSearch::backward(text, miss, text.size() / 2).match.end; });

    const QString line(text.size(), QLatin1Char('x'));
    const double oneLine = timeToShow(view, rounds, [&] { view.setText(line); });

    std::printf("text: %lld characters in %d rows, %.0f MB\n", static_cast<long long>(text.size()),
                rows, double(bytes) / 1e6);
    std::printf("one copy of it            %9.1f ms\n", copying);
    std::printf("finding its lines         %9.1f ms  %6.1f copies\n", indexing, indexing / copying);
    std::printf("set and first painted     %9.1f ms  %6.1f copies\n", showing, showing / copying);
    std::printf("the same, QPlainTextEdit  %9.1f ms  %6.1f copies\n", plain, plain / copying);
    std::printf("the same as a single line %9.1f ms  %6.1f copies\n", oneLine, oneLine / copying);
    std::printf("words not found, forward  %9.1f ms  %6.1f copies\n", forward, forward / copying);
    std::printf("words not found, backward %9.1f ms  %6.1f copies\n", backward, backward / copying);
    return found > 0 ? 0 : 1;
}
