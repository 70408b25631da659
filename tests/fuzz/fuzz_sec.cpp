// Any bytes as a security file beside a good metadata file: what is wrong with it is a warning or a
// refusal with a reason, and the application answers every question of its security.

#include "AskEverything.h"
#include "hfm/offline/AppFile.h"
#include "hfm/offline/Application.h"
#include "hfm/offline/OfflineSession.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/SecurityFile.h"

#include <QBuffer>

#include <cstdlib>

using namespace hfm::offline;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, size_t size)
{
    QByteArray metadata("!MEMBERS=Entity\nA;;;;;SC_A;;;;;;DefaultParent=#root\n");
    QBuffer metadataFile(&metadata);
    metadataFile.open(QIODevice::ReadOnly);
    QByteArray content(reinterpret_cast<const char *>(bytes), qsizetype(size));
    QBuffer file(&content);
    file.open(QIODevice::ReadOnly);
    Warnings warnings;
    ApplicationDraft draft(warnings);
    readMetadataFile(metadataFile, draft);
    try {
        readSecurityFile(file, draft);
    } catch (const ReadingError &error) {
        if (error.reason().isEmpty())
            std::abort();
    }
    OfflineSession session(finishApplication(draft, {}, 2012), {});
    askSecurity(*session.GetSecurity());
    return 0;
}
