#include "runtime/dlgPrompts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace {

using Answer = Prompts::Answer;

class EndableProgram final : public Program
{
public:
    void end(int) override { mEnding = true; }
    bool isEnding() const override { return mEnding; }

private:
    bool mEnding = false;
};

QMessageBox *openBox()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

QStringList buttonsOf(const QMessageBox &box)
{
    QStringList texts;
    for (const auto button :
         {QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::No})
        if (const QAbstractButton *shown = box.button(button))
            texts.append(shown->text().remove(QLatin1Char('&')));
    return texts.size() == box.buttons().size() ? texts : QStringList();
}

} // namespace

Q_DECLARE_METATYPE(Prompt)
Q_DECLARE_METATYPE(Answer)

class tst_dlgPrompts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mProgram = {}; }

    void titleTextIconAndButtonsAreShown_data()
    {
        QTest::addColumn<Prompt>("prompt");
        QTest::addColumn<int>("icon");
        QTest::addColumn<QStringList>("buttons");
        const QString title = QStringLiteral("File Exists");
        const QString text = QStringLiteral("Do you want to overwrite this file?");
        const QStringList ok{QStringLiteral("OK")};
        const QStringList okCancel{QStringLiteral("OK"), QStringLiteral("Cancel")};
        const QStringList yesNo{QStringLiteral("Yes"), QStringLiteral("No")};
        QTest::newRow("none, OK") << Prompt{title, text, Prompt::Icon::None, Prompt::Buttons::Ok}
                                  << int(QMessageBox::NoIcon) << ok;
        QTest::newRow("critical, OK")
            << Prompt{title, text, Prompt::Icon::Critical, Prompt::Buttons::Ok}
            << int(QMessageBox::Critical) << ok;
        QTest::newRow("information, OK")
            << Prompt{title, text, Prompt::Icon::Information, Prompt::Buttons::Ok}
            << int(QMessageBox::Information) << ok;
        QTest::newRow("question, Yes and No")
            << Prompt{title, text, Prompt::Icon::Question, Prompt::Buttons::YesNo}
            << int(QMessageBox::Question) << yesNo;
        QTest::newRow("exclamation, OK and Cancel")
            << Prompt{title, text, Prompt::Icon::Exclamation, Prompt::Buttons::OkCancel}
            << int(QMessageBox::Warning) << okCancel;
        QTest::newRow("exclamation, Yes and No")
            << Prompt{title, text, Prompt::Icon::Exclamation, Prompt::Buttons::YesNo}
            << int(QMessageBox::Warning) << yesNo;
    }
    void titleTextIconAndButtonsAreShown()
    {
        QFETCH(Prompt, prompt);
        QFETCH(int, icon);
        QFETCH(QStringList, buttons);
        bool seen = false;
        askAnd(prompt, [&](QMessageBox &box) {
            QCOMPARE(box.windowTitle(), prompt.title);
            QCOMPARE(box.text(), prompt.text);
            QCOMPARE(box.informativeText(), QString());
            QCOMPARE(int(box.icon()), icon);
            QCOMPARE(buttonsOf(box), buttons);
            QVERIFY(box.isVisible());
            QVERIFY(box.isModal());
            seen = true;
        });
        QVERIFY(seen);
    }

    void eachLineBreakIsShownAsOne()
    {
        QString shown;
        askAnd({{}, QStringLiteral("a\rb\r\rc\nd\n\ne\r\nf\r\n\r\ng\n\rh")},
               [&](QMessageBox &box) { shown = box.text(); });
        QCOMPARE(shown, QStringLiteral("a\nb\n\nc\nd\n\ne\nf\n\ng\n\nh"));
    }

    void signsOfARichTextAreShownAsTheyStand()
    {
        const QString text = QStringLiteral("<b>Net</b> & &Sales &amp; <img src=x>");
        bool seen = false;
        askAnd({{}, text}, [&](QMessageBox &box) {
            const auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
            QVERIFY(label);
            QCOMPARE(label->text(), text);
            QCOMPARE(label->textFormat(), Qt::PlainText);
            seen = true;
        });
        QVERIFY(seen);
    }

    void theTextCanBeSelected()
    {
        Qt::TextInteractionFlags flags;
        askAnd({{}, QStringLiteral("text")},
               [&](QMessageBox &box) { flags = box.textInteractionFlags(); });
        QVERIFY(flags.testFlag(Qt::TextSelectableByMouse));
        QVERIFY(flags.testFlag(Qt::TextSelectableByKeyboard));
    }

    void aClickAnswersItsButton_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<int>("clicked");
        QTest::addColumn<Answer>("answer");
        using B = Prompt::Buttons;
        QTest::newRow("OK") << int(B::Ok) << int(QMessageBox::Ok) << Answer::Ok;
        QTest::newRow("OK of two") << int(B::OkCancel) << int(QMessageBox::Ok) << Answer::Ok;
        QTest::newRow("Cancel") << int(B::OkCancel) << int(QMessageBox::Cancel) << Answer::Cancel;
        QTest::newRow("Yes") << int(B::YesNo) << int(QMessageBox::Yes) << Answer::Yes;
        QTest::newRow("No") << int(B::YesNo) << int(QMessageBox::No) << Answer::No;
    }
    void aClickAnswersItsButton()
    {
        QFETCH(int, buttons);
        QFETCH(int, clicked);
        QFETCH(Answer, answer);
        const Prompt prompt{{}, QStringLiteral("?"), {}, Prompt::Buttons(buttons)};
        QCOMPARE(askAnd(prompt,
                        [&](QMessageBox &box) {
                            QTest::mouseClick(box.button(QMessageBox::StandardButton(clicked)),
                                              Qt::LeftButton);
                        }),
                 answer);
    }

    void keysAndClosingAnswer_data()
    {
        QTest::addColumn<int>("buttons");
        QTest::addColumn<Answer>("entered");
        QTest::addColumn<Answer>("closed");
        QTest::newRow("OK") << int(Prompt::Buttons::Ok) << Answer::Ok << Answer::Ok;
        QTest::newRow("OK, Cancel")
            << int(Prompt::Buttons::OkCancel) << Answer::Ok << Answer::Cancel;
        QTest::newRow("Yes, No") << int(Prompt::Buttons::YesNo) << Answer::Yes << Answer::No;
    }
    void keysAndClosingAnswer()
    {
        QFETCH(int, buttons);
        QFETCH(Answer, entered);
        QFETCH(Answer, closed);
        const Prompt prompt{{}, QStringLiteral("?"), {}, Prompt::Buttons(buttons)};
        const auto press = [](Qt::Key key) {
            return [key](QMessageBox &box) { QTest::keyClick(&box, key); };
        };
        QCOMPARE(askAnd(prompt, press(Qt::Key_Return)), entered);
        QCOMPARE(askAnd(prompt, press(Qt::Key_Escape)), closed);
        QCOMPARE(askAnd(prompt, [](QMessageBox &box) { box.close(); }), closed);
    }

    void theBoxBelongsToTheActiveWindow()
    {
        QWidget window;
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QWidget *owner = nullptr;
        askAnd({{}, QStringLiteral("text")}, [&](QMessageBox &box) { owner = box.parentWidget(); });
        QCOMPARE(owner, &window);
        QVERIFY(window.findChildren<QMessageBox *>().isEmpty());
    }

    void aBoxUnderAnHourglassHasTheArrow()
    {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        const auto back = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
        Qt::CursorShape shape = Qt::BlankCursor;
        askAnd({{}, QStringLiteral("text")},
               [&](QMessageBox &) { shape = QGuiApplication::overrideCursor()->shape(); });
        QCOMPARE(shape, Qt::ArrowCursor);
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }

    void aBoxWithoutAnHourglassLeavesEachControlItsOwnPointer()
    {
        bool isOverridden = true;
        askAnd({{}, QStringLiteral("text")},
               [&](QMessageBox &) { isOverridden = QGuiApplication::overrideCursor(); });
        QVERIFY(!isOverridden);
    }

    void aBoxWhoseWindowGoesIsAnsweredAsAClosedOne()
    {
        auto *window = new QWidget;
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        const Prompt prompt{{}, QStringLiteral("?"), {}, Prompt::Buttons::YesNo};
        QCOMPARE(askAnd(prompt, [&](QMessageBox &) { delete window; }), Answer::No);
    }

    void noBoxIsShownWhileTheProgramIsEnding()
    {
        mProgram.end(0);
        bool shown = false;
        const auto count = [&](Prompt::Buttons buttons) {
            return askAnd({{}, QStringLiteral("?"), {}, buttons},
                          [&](QMessageBox &) { shown = true; });
        };
        QCOMPARE(count(Prompt::Buttons::Ok), Answer::Ok);
        QCOMPARE(count(Prompt::Buttons::OkCancel), Answer::Cancel);
        QCOMPARE(count(Prompt::Buttons::YesNo), Answer::No);
        QCoreApplication::processEvents();
        QVERIFY(!shown);
        QVERIFY(!QApplication::activeModalWidget());
    }

private:
    /// Asks, and once the box is open does `action` to it; a box that is still open then is
    /// closed.
    Answer askAnd(const Prompt &prompt, const std::function<void(QMessageBox &)> &action)
    {
        QTimer::singleShot(0, this, [action] {
            const QPointer<QMessageBox> box = openBox();
            if (!box)
                return;
            action(*box);
            if (box && box->isVisible())
                box->close();
        });
        return mPrompts.ask(prompt);
    }

    EndableProgram mProgram;
    dlgPrompts mPrompts{mProgram};
};

QTEST_MAIN(tst_dlgPrompts)
#include "tst_dlgPrompts.moc"
