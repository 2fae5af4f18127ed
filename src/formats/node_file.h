#pragma once

#include <QString>

namespace kavro {

class FileStore;
class Folders;
class Messages;
class SubtitleDocument;

/// The control file that keeps a document's nodes between runs: `subBaseName`.sdf in the folder of
/// nodes.
///
/// Lines: the program's version, "<File>", the document's full path, "</File>", "<Data>", the
/// number of nodes, one line a node (first row "," last row ":" name and flag, "1" or "0", without
/// a separator), "</Data>".
class NodeFile
{
public:
    NodeFile(SubtitleDocument &document, Folders &folders, FileStore &store, Messages &messages,
             const QString &versionNumber);

    /// Writes the nodes of the document saved as `path`. A fault is silent: the subtitle itself is
    /// safe.
    void SaveSubControl(const QString &path);

    /// Reads the nodes of the loaded document. Without a file, with one of another path or a
    /// damaged one, the document has one node over all its rows.
    void load();

private:
    void setSingleNode();

    SubtitleDocument &m_document;
    Folders &m_folders;
    FileStore &m_store;
    Messages &m_messages;
    QString m_versionNumber;
};

} // namespace kavro
