#pragma once

namespace kavro {

class LanguageTable;
class Messages;
class SubtitleDocument;
struct EditorPage;
struct StatusPanels;

/// Starts and ends nodes at the current row, and steps from node to node. Its buttons stand on the
/// editor page, since row changes switch them.
class NodeTool
{
public:
    /// All are borrowed and outlive the tool.
    struct Parts
    {
        EditorPage &editor;
        SubtitleDocument &document;
        StatusPanels &status;
        Messages &messages;
        const LanguageTable &language;
    };

    explicit NodeTool(const Parts &parts);

private:
    void toggle();     ///< btnNode(0)
    void step(int by); ///< Label74, Label75
    void refuse(int row);

    Parts m_parts;
};

} // namespace kavro
