#pragma once

#include "support/FakeServices.h"
#include "viewer/frmMetadataViewer.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

/// The viewer's window over a fake client, for the tests that derive from it.
class ViewerWindow
{
protected:
    std::unique_ptr<FakeServices> mServices;
    modGlobal mGlobal;
    std::unique_ptr<frmMetadataViewer> mWindow;

    FakeApplication &application() { return mServices->hfm.application(); }
    FakeCalls &calls() { return mServices->hfm.calls(); }

    void choose(FakeKind kind, const QString &name)
    {
        mGlobal.gDimension = application().dimensions[size_t(kind)];
        mGlobal.gDimensionName = name;
    }
    void open(FakeKind kind, const QString &name)
    {
        choose(kind, name);
        mWindow = std::make_unique<frmMetadataViewer>(mServices->services, mGlobal);
        mWindow->setAttribute(Qt::WA_DeleteOnClose, false);
        mWindow->show();
        QVERIFY(QTest::qWaitForWindowExposed(mWindow.get()));
    }
    void openCustom(const QString &outline)
    {
        application().custom(1).setMembers(outline);
        open(FakeKind::Custom1, u"CUSTOM1"_s);
    }
    void openAccounts()
    {
        application().account().setMembers(
            u"Net|Net\n  Sales|All\n    Home|Home\n  Cost|All\nTax"_s);
        open(FakeKind::Account, u"ACCOUNT"_s);
    }
    void openEntities()
    {
        application().value().setMembers(
            u"[None]\nEUR Total\n  EUR\n  EUR Adjs\nUSD Total\n  USD"_s);
        application().security->addClass(u"North"_s);
        application().security->addClass(u"South"_s);
        application().entity().setMembers(u"Group|All\n  US01|US\n  FR01|FR\n  DE01|DE"_s);
        FakeDimension &entity = application().entity();
        const hfm::MemberId euro = application().value().members().find(u"EUR"_s);
        const hfm::MemberId dollar = application().value().members().find(u"USD"_s);
        entity.entity(u"Group"_s).currency = euro;
        entity.entity(u"US01"_s).currency = dollar;
        entity.entity(u"FR01"_s).currency = euro;
        entity.entity(u"DE01"_s).currency = euro;
        entity.entity(u"US01"_s).securityClass = 0;
        entity.entity(u"FR01"_s).securityClass = 1;
        open(FakeKind::Entity, u"ENTITY"_s);
    }

    template <typename Widget>
    Widget *find(const char *name)
    {
        auto *widget = mWindow->findChild<Widget *>(QString::fromLatin1(name));
        if (!widget)
            qFatal("no %s", name);
        return widget;
    }
    QTreeView *tree() { return find<QTreeView>("trvMembers"); }
    QTreeView *topTree() { return find<QTreeView>("trvTopMember"); }
    QString title() { return find<QLabel>("lblTotalMembers")->text(); }
    void click(const char *button)
    {
        QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton);
    }
    QMenu *menu() { return find<QMenu>("mnuRightClick"); }
    QStringList entries(const char *combo)
    {
        QStringList all;
        for (int i = 0; i < find<QComboBox>(combo)->count(); ++i)
            all.append(find<QComboBox>(combo)->itemText(i));
        return all;
    }

    QString printed(const QTreeView *view)
    {
        QString text;
        std::vector<std::pair<QModelIndex, int>> open;
        const auto push = [&](const QModelIndex &parent, int depth) {
            for (int row = view->model()->rowCount(parent); row > 0; --row)
                open.push_back({view->model()->index(row - 1, 0, parent), depth});
        };
        push({}, 0);
        while (!open.empty()) {
            const auto [index, depth] = open.back();
            open.pop_back();
            text += QString(2 * depth, u' ') + index.data().toString() + u'\n';
            push(index, depth + 1);
        }
        return text;
    }

    /// The node at the end of a way of rows from the top.
    QModelIndex at(QTreeView *view, const QList<int> &way)
    {
        QModelIndex index;
        for (const int row : way)
            index = view->model()->index(row, 0, index);
        return index;
    }
    void setTopMember(const QList<int> &way)
    {
        tree()->setCurrentIndex(at(tree(), way));
        find<QAction>("mnuTopMember")->trigger();
    }

    void start()
    {
        mServices = std::make_unique<FakeServices>();
        mGlobal = {};
        mGlobal.gSession = mServices->hfm.openSession();
        mGlobal.gMetadata = mGlobal.gSession->GetMetadata();
        mGlobal.gApplicationName = u"Comma"_s;
    }
    void close()
    {
        mWindow.reset();
        QVERIFY(mServices->program.endCodes.isEmpty());
    }
    /// The error that has been shown, and has ended the program.
    int shownError()
    {
        const QList<int> codes = std::exchange(mServices->program.endCodes, {});
        const QString text =
            mServices->prompts.asked.isEmpty() ? QString() : mServices->prompts.asked.last().text;
        return codes == QList<int>{1} ? text.section(u'\'', 1, 1).toInt() : 0;
    }
};
