#include "formats/load_subfile.h"

#include "formats/load_run.h"

namespace kavro {

SubtitleLoader::SubtitleLoader(const Parts &parts) : m_parts(parts) {}

LoadResult SubtitleLoader::LoadSubFile(LoadRequest &request)
{
    return LoadRun(m_parts, request).run();
}

} // namespace kavro
