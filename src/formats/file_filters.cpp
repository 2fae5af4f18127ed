#include "formats/file_filters.h"

#include "core/folders.h"

#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace kavro {

const QStringList &fileFilters()
{
    static const QStringList filters{
        u"Supported files (*.sub, *.jss, *.pjs, *.psb, *.rt, *.smi, *.sami, *.srt, *.ssa, *.txt, "
        "*.tts, *.vsf, *.zeg, *.avi, *.wav, *.mp3, *.scd)|*.sub;*.jss;*.pjs;*.psb;*.rt;*.smi;"
        "*.sami;*.srt;*.ssa;*.txt;*.tts;*.vsf;*.zeg;*.avi;*.mpg;*.wmv;*.wav;*.mp3;*.scd"_s,
        u"DVD Subtitle (*.sub)|*.sub"_s,
        u"JACOSub 2.7+ (*.jss)|*.jss"_s,
        u"MicroDVD (*.sub)|*.sub"_s,
        u"Phoenix Japanimation (*.pjs)|*.pjs"_s,
        u"PowerDivX (*.psb)|*.psb"_s,
        u"RealTime (*.rt)|*.rt"_s,
        u"Synch. Accessible Media Interchange (*.smi, *.sami)|*.smi;*.sami"_s,
        u"Sonic DVD (*.sub)|*.sub"_s,
        u"SubRip (*.srt)|*.srt"_s,
        u"SubStation Alpha (*.ssa)|*.ssa"_s,
        u"SubViewer 1.0 (*.sub)|*.sub"_s,
        u"SubViewer 2.0 (*.sub)|*.sub"_s,
        u"TMPlayer (*.txt)|*.txt"_s,
        u"Turbo Titler (*.tts)|*.tts"_s,
        u"ViPlay Subtitle File (*.vsf)|*.vsf"_s,
        u"Zero G (*.zeg)|*.zeg"_s,
        u"Kavro Setting file (*.scd)|*.scd"_s,
        // The label leaves two patterns out; people know it so.
        u"Video (*.avi, *.mpg, *.wmv)|*.avi;*.mpg;*.wmv"_s,
        u"Audio Files (*.wav, *.mp3)|*.wav;*.mp3"_s,
        u"Macro Files (*.mcr)|*.mcr"_s,
        u"Calculator Tablet Files (*.sac)|*.sac"_s,
    };
    return filters;
}

QString filterLabel(int filter)
{
    const QString entry = fileFilters().value(filter);
    return entry.first(std::max<qsizetype>(entry.indexOf(" ("_L1), 0));
}

QString filterExtension(int filter)
{
    const QString entry = fileFilters().value(filter);
    return entry.sliced(std::max<qsizetype>(entry.lastIndexOf(u'.'), 0));
}

QString withExtension(const QString &path, QStringView extension)
{
    const qsizetype nameLength = nameOf(path).size();
    const qsizetype point = nameOf(path).lastIndexOf(u'.');
    const qsizetype kept = path.size() - nameLength + (point < 0 ? nameLength : point);
    return QStringView(path).first(kept) % extension;
}

QString subtitlePatterns()
{
    return u"*.sub;*.jss;*.pjs;*.psb;*.rt;*.smi;*.sami;*.srt;*.ssa;*.txt;*.tts;*.vsf;*.zeg"_s;
}

} // namespace kavro
