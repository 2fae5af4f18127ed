#include "ui/view_state.h"

#include "core/folders.h"
#include "core/line_reader.h"
#include "core/safe_file.h"
#include "core/text.h"

#include <algorithm>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView fileName = u"view.sdf";
constexpr QStringView splitterKey = u"left panel:=";
constexpr QStringView maximizedKey = u"maximized:=";
constexpr double widestPanel = 4000;

} // namespace

ViewState ViewState::read(const Folders &folders)
{
    ViewState state;
    LineReader reader;
    if (!reader.open(folders.path(Folder::System, fileName)).ok()) {
        return state;
    }
    while (!reader.atEnd()) {
        const QStringView line = reader.readLine();
        if (line.startsWith(splitterKey)) {
            const double width = Val(line.sliced(splitterKey.size()));
            state.leftPanelWidth = static_cast<int>(std::clamp(width, 0.0, widestPanel));
        } else if (line.startsWith(maximizedKey)) {
            state.maximized = Val(line.sliced(maximizedKey.size())) > 0;
        }
    }
    return state;
}

void ViewState::write(Folders &folders, FileStore &store) const
{
    const QString path = folders.writablePath(Folder::System, fileName);
    folders.makeRoomFor(path);
    FileWriter writer(store);
    writer.open(path);
    writer.writeLine(splitterKey.toString() + QString::number(leftPanelWidth));
    writer.writeLine(maximizedKey.toString() + QString::number(maximized ? 1 : 0));
    writer.commit();
}

} // namespace kavro
