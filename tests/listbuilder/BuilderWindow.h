#pragma once

#include "listbuilder/frmMemberListBuilder.h"
#include "support/FakeServices.h"

#include <QAbstractButton>
#include <QListView>
#include <QPointer>
#include <QTest>
#include <QTreeView>

/// A builder window on the fake client's Account dimension, with hands to use it.
class BuilderWindow
{
public:
    explicit BuilderWindow(const QString &outline)
    {
        account().setMembers(outline);
        choose(FakeKind::Account, QStringLiteral("ACCOUNT"));
        global.gSession = fake.hfm.openSession();
        global.gApplicationName = QStringLiteral("Comma & <b>Co</b>");
    }
    ~BuilderWindow() { delete window.data(); }
    Q_DISABLE_COPY_MOVE(BuilderWindow)

    FakeServices fake;
    modGlobal global;
    QPointer<frmMemberListBuilder> window;

    FakeDimension &account() { return fake.hfm.application().account(); }
    void choose(FakeKind kind, const QString &upperName)
    {
        global.gDimension = fake.hfm.application().dimensions[size_t(kind)];
        global.gDimensionName = upperName;
    }

    void open()
    {
        window = new frmMemberListBuilder(fake.services, global);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window));
    }

    template <typename Control>
    Control *control(const char *name) const
    {
        return window->findChild<Control *>(QLatin1StringView(name));
    }

    void click(const char *name)
    {
        auto *button = control<QAbstractButton>(name);
        QVERIFY2(button, name);
        QTest::mouseClick(button, Qt::LeftButton);
    }
    bool isEnabled(const char *name) const { return control<QWidget>(name)->isEnabled(); }
    bool hasFocus(const char *name) const { return control<QWidget>(name)->hasFocus(); }

    /// The node that the rows lead to, from a top-level node on.
    QModelIndex node(std::initializer_list<int> rows) const
    {
        QModelIndex index;
        for (const int row : rows)
            index = tree()->model()->index(row, 0, index);
        return index;
    }
    QTreeView *tree() const { return control<QTreeView>("trvMembers"); }
    bool isChecked(const QModelIndex &node) const
    {
        return node.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    /// Clicks into a node's check box.
    void check(const QModelIndex &node)
    {
        const QRect area = tree()->visualRect(node);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {},
                          area.topLeft() + QPoint(area.height() / 2 + 1, area.height() / 2));
    }

    QListView *list(const char *name) const { return control<QListView>(name); }
    QStringList rows(const char *name) const
    {
        QStringList texts;
        const QAbstractItemModel *model = list(name)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, 0).data().toString());
        return texts;
    }
    /// Clicks on a row.
    void select(const char *name, int row, Qt::KeyboardModifiers modifiers = {})
    {
        const QModelIndex index = list(name)->model()->index(row, 0);
        QTest::mouseClick(list(name)->viewport(), Qt::LeftButton, modifiers,
                          list(name)->visualRect(index).center());
    }
    /// -1 where no row is selected, else the one that is, -2 where there are several.
    int selected(const char *name) const
    {
        const QModelIndexList selected = list(name)->selectionModel()->selectedIndexes();
        return selected.isEmpty() ? -1 : selected.size() == 1 ? selected[0].row() : -2;
    }
    static void doubleClick(QAbstractItemView *view, const QModelIndex &index,
                            Qt::MouseButton button = Qt::LeftButton)
    {
        const QPoint place = view->visualRect(index).center();
        QTest::mouseClick(view->viewport(), button, {}, place);
        QTest::mouseDClick(view->viewport(), button, {}, place);
    }

    void type(const char *name, const QString &text)
    {
        QTest::keyClicks(control<QWidget>(name), text);
    }
    void key(const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(control<QWidget>(name), key, modifiers);
    }
};
