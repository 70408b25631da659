#include "generator/ApplicationGenerator.h"

#include "generator/ChunkWriter.h"
#include "generator/HierarchyPlan.h"
#include "generator/MemberRecords.h"
#include "generator/MemberTexts.h"

#include <stdexcept>

namespace generator {

namespace {

void check(const Request &request)
{
    if (!QByteArrayView(",~@$%^&|:;?\\").contains(request.delimiter))
        throw std::invalid_argument("HFM allows no such delimiter, or its top members hold it.");
    if (request.languages < 0)
        throw std::invalid_argument("There are less than no languages.");
    if (request.dimension.isEmpty())
        throw std::invalid_argument("The dimension has no name.");
}

bool isNamedCustom(const Request &request)
{
    static const QStringList others{QStringLiteral("Account"),  QStringLiteral("Entity"),
                                    QStringLiteral("Scenario"), QStringLiteral("Custom1"),
                                    QStringLiteral("Custom2"),  QStringLiteral("Custom3"),
                                    QStringLiteral("Custom4")};
    return !others.contains(request.dimension);
}

void writeSettings(const Request &request, ChunkWriter &out)
{
    out.line("!FILE_FORMAT=11.12");
    out.line("!VERSION=11.1.5033");
    if (isNamedCustom(request))
        out.line("!CUSTOM_ORDER=" + request.dimension.toUtf8());
    out.line("!APPLICATION_SETTINGS");
    out.line("DefaultCurrency=" + currencyLabels().first());
    out.line("!LANGUAGES");
    for (qint32 language = 0; language < request.languages; ++language)
        out.line(languageName(language));
    out.line("!CURRENCIES");
    for (const QByteArray &currency : currencyLabels()) {
        (out << currency).field("0").field("").field("Y");
        out.endLine();
    }
}

void writeMembers(const Request &request, const HierarchyPlan &plan,
                  const std::vector<qint32> &order, const MemberRecords &records, ChunkWriter &out)
{
    out.line("!MEMBERS=" + request.dimension.toUtf8());
    out << "'" << records.columns().join(request.delimiter);
    out.field("DefaultParent").field("Descriptions").endLine();
    for (const qint32 member : order) {
        records.write(member, plan.isParent(member), out);
        const qint32 parent = plan.defaultParent(member);
        out.field("DefaultParent=")
            << (parent == HierarchyPlan::root ? QByteArray("#root") : records.label(parent));
        for (qint32 language = 0; language < request.languages; ++language)
            out.field(languageName(language)) << "=" << description(member, language, request.seed);
        out.endLine();
    }
}

void writeHierarchy(const Request &request, const HierarchyPlan &plan,
                    const std::vector<qint32> &order, const MemberRecords &records,
                    ChunkWriter &out)
{
    const auto writeEdge = [&](const QByteArray &parent, qint32 child) {
        (out << parent).field(records.label(child));
        if (records.isCustom())
            out.field("1");
        out.endLine();
    };
    out.line("!HIERARCHIES=" + request.dimension.toUtf8());
    for (const qint32 member : order) {
        if (plan.defaultParent(member) == HierarchyPlan::root)
            writeEdge(QByteArray(), member);
        const QByteArray label = records.label(member);
        for (const qint32 child : plan.children(member))
            writeEdge(label, child);
    }
}

} // namespace

Summary generate(const Request &request, QIODevice &out)
{
    check(request);
    const HierarchyPlan plan(request);
    const std::vector<qint32> order = plan.treeOrder();
    const MemberRecords records(request);
    ChunkWriter writer(request, out);
    writeSettings(request, writer);
    writeMembers(request, plan, order, records, writer);
    writeHierarchy(request, plan, order, records, writer);
    writer.flush();
    return plan.summary();
}

} // namespace generator
