#pragma once

#include <QDateTime>
#include <QSize>
#include <QString>
#include <QStringList>

namespace kavro {

class Form;

/// The answers of a message window; the numbers are the program's own.
enum class Answer { Cancel = 0, Ok = 1, No = 2, Yes = 3 };

/// One message as data, ready to be shown: nothing in it is expanded any more.
struct Message
{
    QString title;
    QString text; ///< lines end with CR LF
    /// Holds the words "cancel", "ok", "no", "yes" in any combination.
    QString kind;
    Answer defaultButton = Answer::Ok;
    bool showInput = false; ///< the two fields for a variable's name and value are shown

    /// True when the window has that button.
    [[nodiscard]] bool offers(Answer answer) const;
    /// Cancel, else no, else ok; what a shell answers for a person who isn't there.
    [[nodiscard]] Answer safestAnswer() const;
};

struct MessageReply
{
    Answer answer = Answer::Cancel;
    QString inputName; ///< read only when the message shows its input fields
    QString inputValue;
};

/// Shows a message and waits for its answer.
class MessageWindow
{
public:
    virtual ~MessageWindow() = default;
    [[nodiscard]] virtual MessageReply show(const Message &message) = 0;
};

/// What the file window is opened with.
struct FileRequest
{
    QString info; ///< the window's heading, such as "Load a file."
    QString folder;
    QString name;
    QStringList filters; ///< label + "|" + patterns separated by ";"
    int filterIndex = 0;
    bool nameEnabled = true;      ///< a name may be typed: the window is for saving
    bool offersMediaName = false; ///< the box "Save as current loaded media name" is shown
    /// Entries from here on are no subtitle format; a save under them isn't accepted. 0 for none.
    int firstOtherFilter = 0;
};

struct FileReply
{
    bool accepted = false;
    QString path; ///< full path, the machine's own separators
    int filterIndex = 0;
    bool mediaName = false; ///< the box was switched on: the movie's name counts, not `path`
};

/// Asks for a file name. It asks nothing about overwriting.
class FileWindow
{
public:
    virtual ~FileWindow() = default;
    [[nodiscard]] virtual FileReply show(const FileRequest &request) = 0;
};

/// Runs a form that a person works in, until it is hidden.
class FormRunner
{
public:
    virtual ~FormRunner() = default;
    virtual void runModal(Form &form) = 0;
};

/// Shows a help page.
class HelpBrowser
{
public:
    virtual ~HelpBrowser() = default;
    /// @param page  full path of an HTML file; one that is missing is the browser's to tell
    virtual void open(const QString &page) = 0;
};

/// Plays a movie or a sound track. Times are seconds.
class MediaPlayer
{
public:
    virtual ~MediaPlayer() = default;
    /// False when the file can't be played; `fileName` is empty then.
    virtual bool open(const QString &path) = 0;
    [[nodiscard]] virtual QString fileName() const = 0;
    [[nodiscard]] virtual double duration() const = 0;
    [[nodiscard]] virtual double position() const = 0;
    virtual void setPosition(double seconds) = 0;
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual void stop() = 0;
    /// Why nothing plays; empty when a player is there.
    [[nodiscard]] virtual QString missingText() const = 0;
};

class Sound
{
public:
    virtual ~Sound() = default;
    virtual void play(const QString &path) = 0;
};

class Printer
{
public:
    virtual ~Printer() = default;
    [[nodiscard]] virtual bool isAvailable() const = 0;
    /// False when the person cancelled or the printer refused.
    virtual bool print(const QString &title, const QStringList &lines) = 0;
};

class Screen
{
public:
    virtual ~Screen() = default;
    /// Pixels.
    [[nodiscard]] virtual QSize size() const = 0;
    /// Names of the fonts that can be shown, sorted.
    [[nodiscard]] virtual QStringList fonts() const = 0;
};

class Clock
{
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual QDateTime now() const = 0;
};

class RandomNumbers
{
public:
    virtual ~RandomNumbers() = default;
    /// From 0 up to, but not including, 1.
    [[nodiscard]] virtual double next() = 0;
};

/// The doors to the outside world that a shell fills. All are borrowed and outlive the program.
struct Ports
{
    MessageWindow &messages;
    FileWindow &files;
    FormRunner &forms;
    HelpBrowser &help;
    MediaPlayer &player;
    Sound &sound;
    Printer &printer;
    Screen &screen;
    Clock &clock;
    RandomNumbers &random;
};

/// The doors of a shell that holds each in a member of that name; `shell` outlives what they are
/// given to.
template <class Shell>
[[nodiscard]] Ports portsOf(Shell &shell)
{
    return {.messages = shell.messages,
            .files = shell.files,
            .forms = shell.forms,
            .help = shell.help,
            .player = shell.player,
            .sound = shell.sound,
            .printer = shell.printer,
            .screen = shell.screen,
            .clock = shell.clock,
            .random = shell.random};
}

} // namespace kavro
