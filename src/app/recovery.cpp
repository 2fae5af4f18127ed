#include "app/recovery.h"

#include "core/editor_page.h"
#include "core/folders.h"
#include "core/messages.h"
#include "core/ports.h"
#include "core/run_lock.h"
#include "core/safe_file.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

constexpr int tick = 3000; ///< milliseconds between two writings
constexpr int mostPrograms = 100;

/// Also of names that lead to no file any more.
bool isSameFile(const QString &a, const QString &b)
{
    const QFileInfo first(a);
    const QFileInfo second(b);
    return first.absoluteFilePath() == second.absoluteFilePath()
           || (first.exists() && first == second);
}

bool isNewer(const QString &file, const QString &than)
{
    return QFileInfo::exists(file)
           && QFileInfo(file).lastModified() > QFileInfo(than).lastModified();
}

} // namespace

Recovery::Recovery(Form &frmMain, Parts parts)
    : timRecovery(frmMain, u"timRecovery"_s, tick), m_parts(std::move(parts))
{
    m_writer.setMaxThreadCount(1);
    QObject::connect(&timRecovery, &Timer::fired, &timRecovery, [this] { keep(); });
}

Recovery::~Recovery()
{
    finishWriting();
}

bool Recovery::begin(const QString &namedFile)
{
    const QDir folder(m_parts.folders.path(Folder::Recovery));
    Answer answer = Answer::No;
    for (const QString &name : folder.entryList({u"*.rec"_s}, QDir::Files, QDir::Time)) {
        const int number = QFileInfo(name).baseName().toInt();
        // Somebody who runs holds the lock of a file in use.
        if (answer == Answer::No && lock(number)) {
            answer = offer(fileOf(number), namedFile);
            if (answer == Answer::Yes) {
                m_number = number;
            } else {
                m_lock.reset();
            }
        }
    }
    if (m_number == 0) {
        takeNumber();
    }
    watch();
    followChanges(m_parts.document.fileChanged());
    return answer == Answer::Yes;
}

Answer Recovery::offer(const QString &file, const QString &namedFile)
{
    if (!QFileInfo::exists(file)) {
        return Answer::No; // another start has dealt with it meanwhile
    }
    std::optional<KeptDocument> kept = readRecovery(file);
    if (!kept) {
        // It stays under another name: what nobody can read today is still not ours to delete.
        QFile::remove(file + u".bad"_s);
        QFile::rename(file, file + u".bad"_s);
        return Answer::No;
    }
    if (!namedFile.isEmpty() && !isSameFile(namedFile, kept->subFileName)) {
        return Answer::No;
    }
    const bool overtaken = isNewer(kept->savedPath, file);
    const Answer answer = ask(*kept, overtaken);
    if (answer == Answer::No) {
        m_parts.store.remove(file);
    } else if (answer == Answer::Yes) {
        if (overtaken) {
            // A save has to ask before it replaces what was written meanwhile.
            kept->savedPath.clear();
        }
        m_parts.bringBack(*kept);
    }
    return answer;
}

Answer Recovery::ask(const KeptDocument &kept, bool overtaken)
{
    const QString text =
        overtaken
            ? u"The program ended before the changes of this file were saved:/n%1/n%2 subtitles, "
              "kept at %3. The file itself was written once more after that./nDo you want to bring "
              "the changes back? If you choose 'No', they are lost."_s
            : u"The program ended before the changes of this file were saved:/n%1/n%2 subtitles, "
              "kept at %3./nDo you want to bring them back? If you choose 'No', they are lost."_s;
    return m_parts.messages.ShowMessage({text,
                                         {kept.subFileName, QString::number(kept.subtitleCount()),
                                          kept.time.toString(u"yyyy-MM-dd HH:mm:ss"_s)}},
                                        Answer::Yes, u"yesnocancel"_s, u"Unsaved changes"_s);
}

bool Recovery::lock(int number)
{
    if (number < 1) {
        return false;
    }
    const QString name = QString::number(number) + u".lock"_s;
    m_lock = takeRunLock(m_parts.folders.path(Folder::Recovery, name));
    return m_lock != nullptr;
}

void Recovery::takeNumber()
{
    for (int number = 1; number < mostPrograms; ++number) {
        // A program that was killed a moment ago may have left its file meanwhile.
        if (lock(number) && !QFileInfo::exists(fileOf(number))) {
            m_number = number;
            return;
        }
        m_lock.reset();
    }
}

void Recovery::watch()
{
    SubtitleDocument &document = m_parts.document;
    const Grid &grid = document.editor.grdSubEdit;
    const auto changed = [this] { m_dirty = true; };
    QObject::connect(&grid, &Grid::cellChanged, &timRecovery, changed);
    QObject::connect(&grid, &Grid::rowsInserted, &timRecovery, changed);
    QObject::connect(&grid, &Grid::rowsRemoved, &timRecovery, changed);
    QObject::connect(&grid, &Grid::reset, &timRecovery, changed);
    QObject::connect(&document.editor.lstFont, &ListBox::itemsChanged, &timRecovery, changed);
    QObject::connect(&document, &SubtitleDocument::nameChanged, &timRecovery, changed);
    QObject::connect(&document, &SubtitleDocument::fileChangedChanged, &timRecovery,
                     [this](bool unsaved) { followChanges(unsaved); });
}

void Recovery::followChanges(bool changed)
{
    m_dirty = changed;
    timRecovery.setOn(changed && m_number > 0);
    if (!changed && m_number > 0) {
        inTheBackground([file = fileOf(m_number)] { QFile::remove(file); });
    }
}

void Recovery::keep()
{
    if (!std::exchange(m_dirty, false)) {
        return;
    }
    // A writing that fails is tried again with the next change; nobody is disturbed for it.
    inTheBackground([file = fileOf(m_number),
                     document = KeptDocument::of(m_parts.document, m_parts.ports.clock.now())] {
        writeRecovery(file, document);
    });
}

// Whatever still waits for a slow disk is out of date.
void Recovery::inTheBackground(const std::function<void()> &job)
{
    m_writer.clear();
    m_writer.start(job);
}

void Recovery::end()
{
    timRecovery.setOn(false);
    if (m_number > 0) {
        inTheBackground([file = fileOf(m_number)] { QFile::remove(file); });
        finishWriting();
    }
    m_number = 0;
    m_lock.reset();
}

QString Recovery::fileOf(int number) const
{
    return m_parts.folders.path(Folder::Recovery, QString::number(number) + u".rec"_s);
}

} // namespace kavro
