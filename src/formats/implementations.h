#pragma once

namespace kavro {

class SubtitleFormat;

// The formats that the program reads and writes; each lives as long as the program.

const SubtitleFormat *dvdSubtitleFormat();
const SubtitleFormat *jacoSubFormat();
const SubtitleFormat *microDvdFormat();
const SubtitleFormat *phoenixFormat();
const SubtitleFormat *powerDivXFormat();
const SubtitleFormat *realTimeFormat();
const SubtitleFormat *samiFormat();
const SubtitleFormat *sonicDvdFormat();
const SubtitleFormat *subRipFormat();
const SubtitleFormat *subStationAlphaFormat();
const SubtitleFormat *subViewer1Format();
const SubtitleFormat *subViewer2Format();
const SubtitleFormat *tmPlayerFormat();
const SubtitleFormat *turboTitlerFormat();
const SubtitleFormat *viPlayFormat();
const SubtitleFormat *zeroGFormat();

} // namespace kavro
