#include "OpenWindow.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int securityTab = 0;
constexpr int sharedMembersTab = 1;
constexpr int memberListsTab = 2;
constexpr int compareTab = 3;
constexpr int duplicatesTab = 4;
constexpr int statisticsTab = 5;

/// Something that a user can do in the window, and what he does before it.
struct Action
{
    const char *name;
    int tab;
    std::function<void(OpenWindow &)> prepare;
    std::function<void(OpenWindow &)> act;
};

void nothing(OpenWindow &)
{
}

std::function<void(OpenWindow &)> clickOn(const char *button)
{
    return [button](OpenWindow &open) { open.click(button); };
}

std::function<void(OpenWindow &)> pick(const char *list, const QString &entry)
{
    return [list, entry](OpenWindow &open) { open.choose(list, entry); };
}

std::function<void(OpenWindow &)> pickRow(const char *list)
{
    return [list](OpenWindow &open) { open.clickRow(list, 0); };
}

void chooseTwoParents(OpenWindow &open)
{
    open.click("optDimensionCompare_10");
    open.choose("cboTopMember1", u"P"_s);
    open.choose("cboTopMember2", u"R"_s);
}

QList<Action> everyAction()
{
    return {
        {"shared members", sharedMembersTab, nothing, clickOn("optDimension_1")},
        {"a dimension to compare", compareTab, nothing, clickOn("optDimensionCompare_10")},
        {"compare", compareTab, chooseTwoParents, clickOn("cmdCompare")},
        {"a dimension for duplicates", duplicatesTab, nothing, clickOn("optDimensionCompare_1")},
        {"duplicates", duplicatesTab, clickOn("optDimensionCompare_1"), pick("cboParents", u"P"_s)},
        {"statistics of accounts", statisticsTab, nothing, clickOn("optDimensionStats_12")},
        {"statistics of entities", statisticsTab, nothing, clickOn("optDimensionStats_13")},
        {"statistics of Custom1", statisticsTab, nothing, clickOn("optDimensionStats_14")},
        {"statistics of Custom2", statisticsTab, nothing, clickOn("optDimensionStats_15")},
        {"statistics of Custom3", statisticsTab, nothing, clickOn("optDimensionStats_16")},
        {"a user-defined list", memberListsTab, nothing, pick("cboEntityLists", u"Europe"_s)},
        {"a system list", memberListsTab, nothing, pick("cboEntityLists", u"[Base]"_s)},
        {"a top member", memberListsTab, pick("cboEntityLists", u"[Base]"_s),
         pick("cboParentMembers", u"Q"_s)},
        {"a user", securityTab, nothing, pickRow("lstUsers")},
        {"a role", securityTab, nothing, pickRow("lstRoles")},
        {"a class", securityTab, nothing, pickRow("lstSecurityClasses")},
    };
}

} // namespace

/// What holds whatever a user does in the window.
class tst_EveryAction : public QObject
{
    Q_OBJECT

private:
    QList<Action> mActions = everyAction();
    std::unique_ptr<OpenWindow> mOpen;

    void fillTheApplication()
    {
        FakeDimension &entity = mOpen->dimension(FakeKind::Entity);
        entity.setMembers(u"P\n  A\n  Q\n    A\n    B\nR\n  Q\n  C\n"_s);
        entity.addUserList(u"Europe"_s, {u"B"_s, u"Q"_s});
        mOpen->dimension(FakeKind::Account).setMembers(u"S\n  A\n"_s);
        mOpen->dimension(FakeKind::Account).addSystemList(u"[System]"_s, {u"A"_s});
        for (const FakeKind kind : {FakeKind::Custom1, FakeKind::Custom2, FakeKind::Custom3}) {
            mOpen->dimension(kind).setMembers(u"P\n  EUR\n"_s);
            mOpen->dimension(kind).addSystemList(u"[Currencies]"_s, {u"EUR"_s});
            mOpen->dimension(kind).addSystemList(u"[ConsolMethods]"_s, {});
        }
        FakeSecurity &security = *mOpen->fakes.hfm.application().security;
        security.addClass(u"SC_FIN"_s);
        security.addRole(u"Administrator"_s);
        security.addUser(u"CORP\\jsmith"_s);
    }

    const Action &prepare(int action)
    {
        mOpen->open(mActions[action].tab);
        TabControls::setLines(mOpen->control<QListView>("lstUsers"), {u"CORP\\jsmith"_s});
        TabControls::setLines(mOpen->control<QListView>("lstRoles"), {u"Administrator"_s});
        TabControls::setLines(mOpen->control<QListView>("lstSecurityClasses"), {u"SC_FIN"_s});
        mActions[action].prepare(*mOpen);
        mOpen->calls().clear();
        return mActions[action];
    }

    bool hasHourglass() const
    {
        const QCursor *over = QGuiApplication::overrideCursor();
        return over && over->shape() == Qt::WaitCursor;
    }

    void addEveryAction()
    {
        QTest::addColumn<int>("action");
        for (int i = 0; i < mActions.size(); ++i)
            QTest::newRow(mActions[i].name) << i;
    }

    /// Whether the call is the one question whose failure a list takes for "no": is it a parent?
    /// In a list it follows the member's label.
    static bool mayFail(const QString &action, const QStringList &made, int call)
    {
        return (action.endsWith(u" list") || action == u"a top member") && call > 1 &&
               made[call - 1] == u"GetHasChildren" && made[call - 2] == u"GetMemberLabel";
    }

private Q_SLOTS:
    void init()
    {
        mOpen = std::make_unique<OpenWindow>();
        fillTheApplication();
    }
    void cleanup() { mOpen.reset(); }

    void theHourglassCoversTheWholeWindowDuringEveryRead_data() { addEveryAction(); }
    void theHourglassCoversTheWholeWindowDuringEveryRead()
    {
        QFETCH(const int, action);
        const Action &chosen = prepare(action);
        QVERIFY(!hasHourglass());
        int withHourglass = 0;
        mOpen->calls().whileCalling = [&] { withHourglass += hasHourglass(); };
        chosen.act(*mOpen);
        QVERIFY(mOpen->isWell());
        QVERIFY(withHourglass > 0);
        QCOMPARE(withHourglass, mOpen->calls().made().size());
        QVERIFY(!QGuiApplication::overrideCursor());
        QCOMPARE(mOpen->window->cursor().shape(), Qt::ArrowCursor);
    }

    void everyCallThatFailsEndsTheProgramWithOneMessageAndWithoutTheHourglass_data()
    {
        addEveryAction();
    }
    void everyCallThatFailsEndsTheProgramWithOneMessageAndWithoutTheHourglass()
    {
        QFETCH(const int, action);
        prepare(action).act(*mOpen);
        const QStringList made = mOpen->calls().made();
        QVERIFY(made.size() > 1);
        bool hadHourglass = false;
        mOpen->fakes.prompts.whileAsking = [&] {
            hadHourglass = QGuiApplication::overrideCursor();
        };
        for (int call = 1; call <= made.size(); ++call) {
            mOpen->fakes.program.endCodes.clear();
            mOpen->fakes.prompts.asked.clear();
            const Action &chosen = prepare(action);
            mOpen->calls().fail({}, RuntimeError(1234, u"HFM"_s, u"Lost."_s), call);
            chosen.act(*mOpen);
            QVERIFY(!QGuiApplication::overrideCursor());
            QCOMPARE(mOpen->window->cursor().shape(), Qt::ArrowCursor);
            if (mayFail(QString::fromLatin1(chosen.name), made, call)) {
                QVERIFY(mOpen->isWell());
                continue;
            }
            QVERIFY2(mOpen->fakes.program.endCodes == QList<int>{1}, qPrintable(made[call - 1]));
            QCOMPARE(mOpen->fakes.prompts.asked.size(), 1);
            QCOMPARE(mOpen->lastMessage(), u"Run-time error '1234':\r\n\r\nLost."_s);
            QVERIFY(!hadHourglass);
        }
    }
};

QTEST_MAIN(tst_EveryAction)
#include "tst_EveryAction.moc"
