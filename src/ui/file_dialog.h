#pragma once

#include "core/ports.h"

#include <QFileDialog>

#include <functional>

class QCheckBox;
class QLabel;

namespace kavro {

/// The file window of the program's commands. It asks nothing about overwriting, and a save under
/// an entry that is no subtitle format isn't accepted.
class FileDialog : public QFileDialog
{
    Q_OBJECT

public:
    FileDialog(const FileRequest &request, QWidget *parent);

    /// What was chosen; read behind `exec`.
    [[nodiscard]] FileReply reply() const;
    void accept() override;

private:
    void addOwnRow();
    [[nodiscard]] bool mayAccept() const;
    [[nodiscard]] int filterIndex() const;

    FileRequest m_request;
    QCheckBox *m_mediaName = nullptr;
    QLabel *m_refusal = nullptr;
};

/// A filter of the program as Qt writes it: "SubRip (*.srt)|*.srt" is "SubRip (*.srt)".
QString nameFilter(const QString &filter);

/// Shows file windows.
class FileDialogs : public FileWindow
{
public:
    [[nodiscard]] FileReply show(const FileRequest &request) override;

    /// The document's format, 0 for none: a save begins with it where the entry that stands is no
    /// format.
    std::function<int()> documentFormat;
    /// True while a movie is loaded, whose name a save may take; without one it isn't offered.
    std::function<bool()> hasMovie;
};

} // namespace kavro
