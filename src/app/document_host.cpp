#include "app/document_host.h"

#include "app/file_commands.h"
#include "app/navigation.h"
#include "core/messages.h"
#include "core/ports.h"

namespace kavro {

using namespace Qt::StringLiterals;

DocumentHost::DocumentHost(const Ports &ports, Messages &messages, FileCommands &fileCommands,
                           Navigation &navigation)
    : m_ports(ports), m_messages(messages), m_fileCommands(fileCommands), m_navigation(navigation)
{}

bool DocumentHost::openMovie(const QString &path)
{
    if (m_ports.player.open(path)) {
        m_navigation.tabMain.setTab(PlayerTab);
        return true;
    }
    const QString missing = m_ports.player.missingText();
    m_messages.ShowMessage({u"File '%1' can't be played./n%2"_s, {path}, missing}, Answer::Ok,
                           u"ok"_s, u"Media Player"_s);
    return false;
}

double DocumentHost::movieDuration() const
{
    return m_ports.player.duration();
}

bool DocumentHost::saveDocument()
{
    return m_fileCommands.mnuSavesubfile();
}

void DocumentHost::setFileName(const QString &path, int format)
{
    m_fileCommands.nameDocument(path, format);
}

void DocumentHost::addRecent(const QString &path)
{
    m_navigation.addRecent(path);
}

void DocumentHost::EnableDocumentCommands()
{
    m_fileCommands.EnableDocumentCommands();
}

void DocumentHost::documentLoaded()
{
    m_fileCommands.showEncoding();
}

} // namespace kavro
