#include "formats/subtitle_format.h"

namespace kavro {

void SubtitleFormat::writeHeader(WriteFrame & /*frame*/) const {}

void SubtitleFormat::writeTrailer(WriteFrame & /*frame*/) const {}

} // namespace kavro
