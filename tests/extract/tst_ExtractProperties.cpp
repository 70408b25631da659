#include "extract/ExtractBuilder.h"
#include "support/FakeHfm.h"

#include <QTest>
#include <rapidcheck.h>

using namespace Qt::StringLiterals;

namespace {

/// The extract as one would say it: each child's line, then that child's own children.
class PlainExtract
{
public:
    PlainExtract(hfm::Dimension &dimension, qint16 language, const ExtractIndicators &indicators)
        : mDimension(dimension), mLanguage(language), mIndicators(indicators)
    {
    }

    QString rows(hfm::MemberId parent, const QString &label, const QString &description) const
    {
        QString text;
        for (hfm::MemberId child : mDimension.EnumChildMembers(-1, parent)) {
            const QString childLabel = mDimension.GetMemberLabel(child);
            const QString childDescription = mDimension.GetMemberDescription(child, mLanguage);
            QStringList fields = {label, description, childLabel, childDescription};
            const QString indicator =
                mDimension.GetHasChildren(child) ? mIndicators.parent : mIndicators.base;
            if (!indicator.trimmed().isEmpty())
                fields.append(indicator);
            text += u'"' + fields.join(u"\",\""_s) + u"\"\r\n"_s;
            text += rows(child, childLabel, childDescription);
        }
        return text;
    }

private:
    hfm::Dimension &mDimension;
    qint16 mLanguage;
    ExtractIndicators mIndicators;
};

rc::Gen<QString> anyText()
{
    const auto character = rc::gen::element(u'a', u'B', u'"', u',', u' ', u'-', u'é', u'\u4e2d');
    return rc::gen::map(rc::gen::container<std::u16string>(character),
                        [](const std::u16string &text) { return QString::fromStdU16String(text); });
}

/// Members 0, 1, 2, ..., each below some of the members before it, the root among them: shared
/// members and shared parents, but no circles.
void fillWithAnyHierarchy(FakeMembers &members)
{
    const int count = *rc::gen::inRange(0, 24);
    for (int i = 0; i < count; ++i) {
        const int parents = *rc::gen::weightedElement<int>({{1, 0}, {6, 1}, {3, 2}, {1, 3}});
        members.addUnplaced(QString::number(i));
        for (int p = 0; p < parents; ++p)
            members.add(*rc::gen::inRange(hfm::rootMember, i), QString::number(i));
        members.at(i).label = *anyText();
        members.at(i).descriptions = {*anyText(), *anyText()};
    }
}

} // namespace

class tst_ExtractProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWalkWritesWhatTheRecursiveWordingWrites()
    {
        qsizetype rowsSeen = 0;
        const bool holds = rc::check([&rowsSeen] {
            FakeHfm hfm;
            FakeDimension &dimension = hfm.application().account();
            fillWithAnyHierarchy(dimension.members());
            const ExtractIndicators indicators = {*anyText(), *anyText()};
            const qint16 language = *rc::gen::inRange<qint16>(0, 2);

            hfm.calls().clear();
            const ExtractTexts texts = buildExtract(dimension, language, indicators);
            const QStringList walked = hfm.calls().made();
            hfm.calls().clear();
            const QString rows = PlainExtract(dimension, language, indicators).rows(-1, {}, {});

            rowsSeen += rows.count(u'\n');
            RC_ASSERT(texts.rows == rows);
            RC_ASSERT(texts.rowsWithHeader.endsWith(u"\r\n"_s + rows));
            RC_ASSERT(walked == hfm.calls().made());
        });
        QVERIFY(holds);
        QVERIFY(rowsSeen > 100);
    }
};

QTEST_APPLESS_MAIN(tst_ExtractProperties)
#include "tst_ExtractProperties.moc"
