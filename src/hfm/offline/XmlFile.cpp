#include "hfm/offline/XmlFile.h"

#include "hfm/offline/DimensionNames.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/XmlSections.h"

#include <algorithm>

namespace hfm::offline {

namespace {

/// What the elements around a record tell of it.
struct Surroundings
{
    std::optional<DimensionKind> dimension;
    std::optional<XmlList> list;
    bool isFurtherCustom = false; ///< a custom dimension beyond those that are read
    qint64 depth = 0;             ///< of the element that tells it
};

bool isAmong(const QList<QByteArray> &names, QByteArrayView name)
{
    return std::any_of(names.begin(), names.end(),
                       [&](const QByteArray &one) { return sameLabel(one, name); });
}

/// Goes through a file and hands out its records one by one.
class XmlWalk
{
public:
    XmlWalk(XmlReader &reader, const QList<QByteArray> &customNames)
        : mReader(reader), mCustomNames(customNames)
    {
    }

    /// Whether an element of a dimension's name was met.
    bool hasMetDimension() const { return mHasMetDimension; }

    /// Calls `take` with each record, its surroundings and itself.
    template <typename Take>
    void run(Take take)
    {
        XmlRecord record;
        while (true) {
            switch (mReader.next()) {
            case QXmlStreamReader::StartElement:
                if (const auto kind = xmlRecordNamed(mReader.token().name())) {
                    record.read(mReader, *kind);
                    take(mAround.empty() ? Surroundings() : mAround.back(), record);
                } else {
                    enter();
                }
                break;
            case QXmlStreamReader::EndElement:
                if (!mAround.empty() && mAround.back().depth == mDepth)
                    mAround.pop_back();
                --mDepth;
                break;
            case QXmlStreamReader::EndDocument:
                return;
            default:
                break;
            }
        }
    }

private:
    /// Only an element that tells something new is remembered, so that the others may be nested as
    /// deep as they like.
    void enter()
    {
        ++mDepth;
        const QByteArray name = xmlAttribute(mReader, QLatin1StringView("Name"));
        if (name.isEmpty())
            return;
        Surroundings around = mAround.empty() ? Surroundings() : mAround.back();
        around.depth = mDepth;
        const auto dimension = dimensionNamed(name, mCustomNames);
        const bool isFurtherCustom = !dimension && isAmong(mCustomNames, name);
        if (dimension || isFurtherCustom) {
            around.dimension = dimension;
            around.isFurtherCustom = isFurtherCustom;
            mHasMetDimension = true;
        } else if (const auto list = xmlListNamed(name)) {
            around.list = list;
        } else {
            return;
        }
        mAround.push_back(around);
    }

    XmlReader &mReader;
    const QList<QByteArray> &mCustomNames;
    std::vector<Surroundings> mAround;
    qint64 mDepth = 0;
    bool mHasMetDimension = false;
};

/// What must be known of the file before its records can be read.
struct XmlSurvey
{
    QList<QByteArray> customOrder;
    bool hasMetadata = false;
};

XmlSurvey surveyXml(XmlReader &reader)
{
    XmlSurvey survey;
    const QList<QByteArray> noNames;
    XmlWalk walk(reader, noNames);
    walk.run([&](const Surroundings &around, const XmlRecord &record) {
        if (record.kind != XmlRecordKind::Entry)
            survey.hasMetadata = true;
        else if (around.list == XmlList::CustomOrder)
            addCustomNames(record, survey.customOrder);
    });
    survey.hasMetadata = survey.hasMetadata || walk.hasMetDimension();
    return survey;
}

/// Surveys the file, and finds out whether it has more than one root.
XmlSurvey surveyXml(QIODevice &device, const QString &fileName, XmlText &text)
{
    XmlReader reader(device, fileName, text);
    try {
        return surveyXml(reader);
    } catch (const ReadingError &) {
        if (!reader.metAnotherRoot())
            throw;
    }
    text.hasSeveralRoots = true;
    XmlReader ofSeveral(device, fileName, text);
    return surveyXml(ofSeveral);
}

} // namespace

void readXmlMetadataFile(QIODevice &device, ApplicationDraft &draft)
{
    const QString fileName = draft.warnings.fileName(SourceFile::Metadata);
    if (device.size() == 0)
        throw ReadingError(fileName, 0, QStringLiteral("The file is empty."));
    XmlText text = encodingOfXml(device);
    const XmlSurvey survey = surveyXml(device, fileName, text);
    if (!survey.hasMetadata)
        throw ReadingError(fileName, 0,
                           QStringLiteral("The file holds no dimension, no member and no node; it "
                                          "is no metadata file in XML format."));
    if (!survey.customOrder.isEmpty())
        draft.customNames = survey.customOrder;

    XmlReader reader(device, fileName, text);
    XmlSections sections(draft);
    XmlWalk walk(reader, draft.customNames);
    walk.run([&](const Surroundings &around, const XmlRecord &record) {
        if (!around.isFurtherCustom)
            sections.read(around.dimension, around.list, record);
    });
    sections.finish();
}

} // namespace hfm::offline
