#include "formats/load_subfile.h"

#include "core/document.h"
#include "core/font_lists.h"
#include "core/format_lists.h"
#include "core/kept_document.h"
#include "core/language.h"
#include "formats/load_run.h"

namespace kavro {

SubtitleLoader::SubtitleLoader(const Parts &parts) : m_parts(parts) {}

LoadResult SubtitleLoader::LoadSubFile(LoadRequest &request)
{
    return LoadRun(m_parts, request).run();
}

void SubtitleLoader::bringBack(const KeptDocument &kept)
{
    LoadRequest request{.path = kept.subFileName, .format = kept.formatId};
    LoadRun(m_parts, request).bringBack(kept);
}

void SubtitleLoader::showFormat(int format)
{
    m_parts.lists.combo3.setSelected(format - 1);
    m_parts.lists.Combo7.setSelected(format);
    FontLists &fonts = m_parts.document.fonts;
    const FontSupport support = formatInfo(format)->fonts;
    const bool style = support == FontSupport::StylePerLine;
    const bool font = support == FontSupport::FontPerFile;
    fonts.Command42.setEnabled(style);
    fonts.Combo9[0].setAvailable(font);
    fonts.Combo9[1].setAvailable(style);
    const auto supportText = [this](bool kept) {
        return m_parts.language.text(LangGroup::Report, kept ? 20 : 19);
    };
    fonts.Label48[0].setCaption(supportText(font));
    fonts.Label48[1].setCaption(supportText(style));
}

} // namespace kavro
