#pragma once

#include "formats/load_subfile.h"

namespace kavro {

class FileCommands;
class Navigation;
struct Ports;

/// What a load asks of the rooms above it.
class DocumentHost : public LoadHost
{
public:
    DocumentHost(const Ports &ports, Messages &messages, FileCommands &fileCommands,
                 Navigation &navigation);

    bool openMovie(const QString &path) override;
    [[nodiscard]] double movieDuration() const override;
    bool saveDocument() override;
    void setFileName(const QString &path, int format) override;
    void addRecent(const QString &path) override;
    void EnableDocumentCommands() override;
    void documentLoaded() override;

private:
    const Ports &m_ports;
    Messages &m_messages;
    FileCommands &m_fileCommands;
    Navigation &m_navigation;
};

} // namespace kavro
