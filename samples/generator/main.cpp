#include "generator/ApplicationGenerator.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <stdexcept>

using namespace generator;

namespace {

template <typename Value>
Value chosen(const QCommandLineParser &parser, const QString &option,
             const QMap<QString, Value> &choices)
{
    const auto found = choices.find(parser.value(option));
    if (found == choices.end())
        throw std::invalid_argument(QStringLiteral("--%1 takes one of: %2.")
                                        .arg(option, choices.keys().join(u", "))
                                        .toStdString());
    return *found;
}

qint32 number(const QCommandLineParser &parser, const QString &option)
{
    bool isNumber = false;
    const qint32 value = parser.value(option).toInt(&isNumber);
    if (!isNumber)
        throw std::invalid_argument(
            QStringLiteral("--%1 takes a number.").arg(option).toStdString());
    return value;
}

void addOptions(QCommandLineParser &parser)
{
    const auto add = [&](const char *name, const char *text, const char *value) {
        parser.addOption({QString::fromLatin1(name), QString::fromLatin1(text),
                          QStringLiteral("value"), QString::fromLatin1(value)});
    };
    add("dimension",
        "Account, Entity, Scenario, Custom1 to Custom4, or a custom dimension's own name.",
        "Entity");
    add("members", "Number of members.", "1000");
    add("edges",
        "Lines of the hierarchy; those above the number of members are shared members. 0: as many "
        "as members.",
        "0");
    add("shared-parents", "How many of the shared members are parents.", "0");
    add("shape", "tree, chain, wide (all below one parent) or flat (top members only).", "tree");
    add("fan-out", "Children of an ordinary parent of a tree, on average.", "8");
    add("languages", "Number of languages of the descriptions.", "2");
    add("seed", "The same seed gives the same file.", "1");
    add("delimiter", "One of , ~ @ $ % ^ & | : ; ? \\", ";");
    add("encoding", "utf8, utf8-mark, utf16le, utf16be or windows-1252.", "utf8");
    add("line-end", "crlf, lf or cr.", "crlf");
}

Request requested(const QCommandLineParser &parser)
{
    Request request;
    request.dimension = parser.value(QStringLiteral("dimension"));
    request.members = number(parser, QStringLiteral("members"));
    request.edges = number(parser, QStringLiteral("edges"));
    request.sharedParents = number(parser, QStringLiteral("shared-parents"));
    request.fanOut = number(parser, QStringLiteral("fan-out"));
    request.languages = number(parser, QStringLiteral("languages"));
    request.seed = quint64(number(parser, QStringLiteral("seed")));
    request.shape = chosen<Shape>(parser, QStringLiteral("shape"),
                                  {{QStringLiteral("tree"), Shape::Tree},
                                   {QStringLiteral("chain"), Shape::Chain},
                                   {QStringLiteral("wide"), Shape::Wide},
                                   {QStringLiteral("flat"), Shape::Flat}});
    request.encoding = chosen<Encoding>(parser, QStringLiteral("encoding"),
                                        {{QStringLiteral("utf8"), Encoding::Utf8},
                                         {QStringLiteral("utf8-mark"), Encoding::Utf8WithMark},
                                         {QStringLiteral("utf16le"), Encoding::Utf16LittleEndian},
                                         {QStringLiteral("utf16be"), Encoding::Utf16BigEndian},
                                         {QStringLiteral("windows-1252"), Encoding::Windows1252}});
    request.lineEnd = chosen<LineEnd>(parser, QStringLiteral("line-end"),
                                      {{QStringLiteral("crlf"), LineEnd::CrLf},
                                       {QStringLiteral("lf"), LineEnd::Lf},
                                       {QStringLiteral("cr"), LineEnd::Cr}});
    const QByteArray delimiter = parser.value(QStringLiteral("delimiter")).toLatin1();
    if (delimiter.size() != 1)
        throw std::invalid_argument("A delimiter is one character.");
    request.delimiter = delimiter.front();
    return request;
}

Summary generateFile(const Request &request, const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        throw std::runtime_error(file.errorString().toStdString());
    const Summary summary = generate(request, file);
    if (!file.flush())
        throw std::runtime_error(file.errorString().toStdString());
    return summary;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Generates an HFM application of any size, for tests and benchmarks."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The .app file to write."));
    addOptions(parser);
    parser.process(application);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);

    const QString name = parser.positionalArguments().constFirst();
    try {
        const Summary made = generateFile(requested(parser), name);
        QTextStream(stdout) << "members " << made.members << "\nedges " << made.edges << "\nbases "
                            << made.baseMembers << "\ngenerations " << made.generations
                            << "\noccurrences " << made.occurrences << '\n';
    } catch (const std::exception &error) {
        QTextStream(stderr) << name << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
