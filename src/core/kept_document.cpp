#include "core/kept_document.h"

#include "core/editor_page.h"

namespace kavro {

KeptDocument KeptDocument::of(const SubtitleDocument &document, const QDateTime &now)
{
    const auto end = document.nodes.cbegin() + document.nodeCount + 1;
    return {.time = now,
            .subFileName = document.subFileName,
            .formatId = document.curFormatId,
            .encoding = document.encoding,
            .savedPath = document.savedPath,
            .savedFormatId = document.savedFormatId,
            .frameRate = document.frameRate,
            .fontName = document.curFontName,
            .rows = document.editor.grdSubEdit.allRows(),
            .fonts = document.editor.lstFont.items(),
            .nodes = QList<Node>(document.nodes.cbegin(), end),
            .curNode = document.curNode};
}

} // namespace kavro
