#include "core/control_window.h"
#include "core/document.h"
#include "core/folders.h"
#include "core/language.h"
#include "core/player_page.h"
#include "core/settings_page.h"
#include "core/text.h"
#include "core/timecode.h"
#include "formats/file_filters.h"
#include "formats/load_run.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>

// The steps of a load for a name that is a movie's or a sound track's.

using namespace Qt::StringLiterals;

namespace kavro {

bool LoadRun::isMovie() const
{
    static constexpr std::array<QStringView, 5> extensions{u".avi", u".mp3", u".wav", u".mpg",
                                                           u".wmv"};
    return std::ranges::any_of(extensions, [this](QStringView extension) {
        return m_request.path.endsWith(extension, Qt::CaseInsensitive);
    });
}

std::optional<LoadResult> LoadRun::openMovie()
{
    if (m_request.showLog)
        m_parts.control.append(logHead(0));
    const bool plays = m_parts.host.openMovie(m_request.path);
    if (plays)
        showMovie();
    const QString subtitle = subtitleBeside();
    if (!subtitle.isEmpty()) {
        m_request.path = subtitle;
        m_request.format = UnknownFormat;
        // The changes of the document are asked about as for any other subtitle: the person named
        // a movie and need not know that it brings one.
        return std::nullopt;
    }
    if (plays)
        return LoadResult{.kind = Kind::MovieOnly};
    return LoadResult{.kind = Kind::Failed, .error = u"The movie can't be played."_s};
}

void LoadRun::showMovie()
{
    PlayerPage &player = m_parts.document.player;
    const double duration = m_parts.host.movieDuration();
    player.Slider1.setRange(0, duration);
    for (Button &button : player.Command8)
        button.setEnabled(true);
    player.Slider1.setEnabled(true);
    player.Combo1.setEnabled(true);
    const auto state = [this](int item) { return m_parts.language.text(LangGroup::Player, item); };
    player.Label27.setCaption(state(4) % u" [" % state(1) % u']');
    if (!m_request.showLog)
        return;
    const QString &rate = m_parts.document.frameRate;
    m_parts.control.append(
        report(4) % Right(m_request.path, 3).toString().toUpper() % u"\r\n"
        % m_parts.language.ownText(u"  Length: %1"_s).arg(SecondsToTimeCode(secondsText(duration)))
        % u"\r\n"
        % m_parts.language.ownText(u"  Frames: %1 at %2 fps"_s)
              .arg(numberText(duration * Val(rate)), rate)
        % u"\r\n" % report(15) % u"\r\n" % report(16) % u"\r\n");
}

QString LoadRun::subtitleBeside() const
{
    const QString path = m_request.path;
    const bool mayHaveOne = path.endsWith(".avi"_L1, Qt::CaseInsensitive)
                            || path.endsWith(".mpg"_L1, Qt::CaseInsensitive);
    if (!mayHaveOne || !m_parts.settings.Check7[SettingsPage::LoadSubtitle].isOn())
        return {};
    const QString folder = folderOf(path).toString();
    const QString base = lowerCase(nameOf(path).chopped(4));
    const QStringList names = filesIn(folder.isEmpty() ? u"."_s : folder, subtitlePatterns());
    const auto found = std::ranges::find_if(names, [&](const QString &name) {
        return name.size() == base.size() + 4 && lowerCase(name).contains(base);
    });
    return found == names.end() ? QString() : folder + *found;
}

} // namespace kavro
