#pragma once

namespace kavro {

class FileStore;
class Folders;

/// What the window remembers between runs beside its place: kept in a small file of the folder
/// System, one "name:=value" a line. A missing or damaged file gives the defaults.
struct ViewState
{
    int leftPanelWidth = 0; ///< pixels, 0 for the window's own choice
    bool maximized = false;

    static ViewState read(const Folders &folders);
    void write(Folders &folders, FileStore &store) const;
};

} // namespace kavro
