#include "formats/create_subfile.h"

#include "core/messages.h"
#include "formats/write_run.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kavro {

SubtitleWriter::SubtitleWriter(const Parts &parts) : m_parts(parts) {}

WriteResult SubtitleWriter::CreateSubFile(const WriteRequest &request)
{
    return WriteRun(*this, m_parts, request).run();
}

bool SubtitleWriter::FileExist(const QString &name)
{
    // A device or a pipe is there to be written to.
    if (!QFileInfo(name).isFile())
        return true;
    return m_parts.messages.ShowMessage(
               {u"File %1 already exists. /n/nDo you want to overwrite this file?"_s, {name}},
               Answer::No, u"yesno"_s, u"File exists"_s)
           == Answer::Yes;
}

} // namespace kavro
