#include "viewer/TextStore.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_TextStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsOfAnySizeStayWhereTheyAre()
    {
        TextStore store;
        QList<std::pair<QString, const char16_t *>> stored;
        for (const qsizetype size : {0, 1, 255, 256, 257, 3, 100'000, 0, 600'000, 2, 524'288, 7}) {
            const QString text(size, QChar(u'a' + int(stored.size())));
            stored.append({text, store.append(text)});
        }
        for (const auto &[text, place] : stored)
            QCOMPARE(QStringView(place, text.size()), QStringView(text));
    }

    void twoTextsStandSideBySide()
    {
        TextStore store;
        for (int i = 0; i < 1000; ++i) {
            const QString first = QString::number(i);
            const char16_t *const place = store.append(first, u"second");
            QCOMPARE(QStringView(place, first.size() + 6).toString(), first + u"second"_s);
        }
    }
};

QTEST_APPLESS_MAIN(tst_TextStore)
#include "tst_TextStore.moc"
