#pragma once

namespace kavro {

class SubtitleFormat;

// The formats that the program reads and writes; each lives as long as the program.

const SubtitleFormat *subRipFormat();
const SubtitleFormat *subViewer1Format();
const SubtitleFormat *subViewer2Format();
const SubtitleFormat *tmPlayerFormat();

} // namespace kavro
