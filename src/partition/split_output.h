#pragma once

#include "controls/control_array.h"
#include "controls/text_box.h"

#include <QString>
#include <QStringList>

namespace kavro {

class Folders;
class Form;
class LanguageTable;
class Messages;
struct MessageText;
class PartitionList;
class SubtitleDocument;
class SubtitleWriter;
struct ActionTrace;
struct FormatLists;
struct PartitionPage;

/// Makes the part files, and shows each of them before.
class SplitOutput
{
public:
    /// All are borrowed and outlive the tool.
    struct Parts
    {
        SubtitleDocument &document;
        PartitionPage &page;
        PartitionList &list;
        FormatLists &formats;
        SubtitleWriter &writer;
        Messages &messages;
        const LanguageTable &language;
        Folders &folders;
        ActionTrace &trace;
    };

    SplitOutput(Form &frmMain, const Parts &parts);

    Button command5;                      ///< makes the part files
    Button command28;                     ///< opens the preview, and closes it
    ControlArray<Button, 0, 1> command29; ///< previous and next part of the preview
    Label Label6;                         ///< heading of the page
    Label Label7;                         ///< number and title of the part that shows
    TextBox txtPreview;                   ///< the whole file of that part

private:
    void makeParts();
    void openPreview();
    void closePreview();
    void showPreview(bool shown);
    void stepPart(int index);
    void showPart();
    [[nodiscard]] QString partTitle(int part) const;

    /// The first part with a name that no file can have, 0 for none.
    [[nodiscard]] int badPart() const;
    [[nodiscard]] int format() const;
    void refuse(const MessageText &text);

    Parts m_parts;
    bool m_previewing = false;
    QString m_heading;      ///< of the page while it is edited
    QStringList m_previews; ///< files of the preview, by part
};

} // namespace kavro
