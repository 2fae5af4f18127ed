#pragma once

#include <QString>

#include <vector>

namespace kavro {

class FileStore;
class Folders;
class Messages;
class SubtitleDocument;
struct Node;

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

    /// Reads the nodes of the loaded document, fitted to its rows. Without a file, with one of
    /// another path or a damaged one, the document has one node over all its rows.
    void load();

private:
    /// The nodes as the file tells them; none when it isn't there, isn't this document's or is
    /// damaged.
    std::vector<Node> read();
    [[nodiscard]] QString fileName() const;

    SubtitleDocument &m_document;
    Folders &m_folders;
    FileStore &m_store;
    Messages &m_messages;
    QString m_versionNumber;
};

} // namespace kavro
