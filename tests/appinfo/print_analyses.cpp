// Prints what the application information finds in an application's six dimensions, for a script
// that counts the same from the application's file.
//
//   print_analyses APPLICATION.app

#include "appinfo/ApplicationDimensions.h"
#include "appinfo/BaseMemberCompare.h"
#include "appinfo/Duplicates.h"
#include "appinfo/MemberLists.h"
#include "appinfo/ParentLabels.h"
#include "appinfo/SharedMembers.h"
#include "appinfo/Statistics.h"
#include "hfm/offline/OfflineSession.h"
#include "shell/ListMembers.h"

#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstStatisticsOption = 12;

std::shared_ptr<hfm::Metadata> metadataOf(const QString &file)
{
    const QFileInfo info(file);
    for (const hfm::offline::ApplicationFiles &files :
         hfm::offline::findApplications(info.absolutePath()))
        if (QFileInfo(files.metadata) == info)
            return hfm::offline::OfflineSession(hfm::offline::readApplication(files, 2012), {})
                .GetMetadata();
    qFatal("there is no application %s", qPrintable(file));
}

void print(const QString &heading, const QString &text)
{
    std::printf("== %s\n%s\n", qPrintable(heading), text.toUtf8().constData());
}

/// Everything that is asked with one parent, and with it and the next one.
void printParents(hfm::Dimension &dimension, const QString &word)
{
    const QStringList parents = parentLabels(dimension);
    print(u"parents "_s + word, parents.join(u'\n'));
    for (qsizetype i = 0; i < parents.size(); ++i) {
        QString duplicates;
        Duplicates::append(dimension, parents[i], duplicates);
        print(u"duplicates "_s + word + u' ' + parents[i], duplicates);
        const QString &next = parents[(i + 1) % parents.size()];
        QString missing;
        BaseMemberCompare::append(dimension, parents[i], next, missing);
        print(u"missing "_s + word + u' ' + parents[i] + u' ' + next, missing);
        const auto members = MemberLists::members(dimension, u"[Base]"_s, parents[i]);
        print(u"list "_s + ListMembers::heading(word, parents[i], members.size()),
              ListMembers::lines(dimension, members).join(u'\n'));
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        qFatal("usage: print_analyses APPLICATION.app");
    const auto metadata = metadataOf(QString::fromLocal8Bit(argv[1]));
    for (int i = 0; i < ApplicationDimensions::analysedCount; ++i) {
        const QString word = ApplicationDimensions::word(ApplicationDimension(i));
        const auto dimension = ApplicationDimensions::get(*metadata, ApplicationDimension(i));
        print(u"statistics "_s + word,
              Statistics::report(*dimension, Statistics::sectionOfOption(firstStatisticsOption + i),
                                 {u"7"_s, QLocale::c()}));
        print(u"shared "_s + word,
              SharedMembers::report(*dimension, SharedMembers::occurrences(*dimension)));
        printParents(*dimension, word);
    }
    return 0;
}
