// Any bytes as a metadata file in XML format: it is refused with a reason, or opened and then
// answers every question.

#include "AskEverything.h"
#include "hfm/offline/Application.h"
#include "hfm/offline/OfflineSession.h"
#include "hfm/offline/ReadingError.h"
#include "hfm/offline/XmlFile.h"

#include <QBuffer>

#include <cstdlib>

using namespace hfm::offline;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, size_t size)
{
    QByteArray content(reinterpret_cast<const char *>(bytes), qsizetype(size));
    QBuffer file(&content);
    file.open(QIODevice::ReadOnly);
    Warnings warnings;
    ApplicationDraft draft(warnings);
    try {
        readXmlMetadataFile(file, draft);
        OfflineSession session(finishApplication(draft, {}, 2012), {});
        askEverything(session);
    } catch (const ReadingError &error) {
        if (error.reason().isEmpty())
            std::abort();
    }
    return 0;
}
