#pragma once

#include "cli/batch_ports.h"
#include "core/ports.h"

#include <QList>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>
#include <ostream>
#include <random>

namespace kavro {

class JsonWriter;

/// The objects of a driven program, each on a line of its own and flushed.
class ObjectOutput
{
public:
    explicit ObjectOutput(std::ostream &out) : m_out(out) {}
    void write(const JsonWriter &object);
    /// Nothing that is written comes through any more.
    [[nodiscard]] bool hasFailed() const { return m_out.fail(); }

private:
    std::ostream &m_out;
};

/// What the two fields of a message window are told.
struct TypedInput
{
    QString name;
    QString value;
};

/// Prints each message and answers it from the queue; when that is empty with the one answer of the
/// call where the message offers it, else with its safest.
class DriveMessages : public MessageWindow
{
public:
    DriveMessages(ObjectOutput &output, std::ostream &err, std::optional<Answer> answer)
        : m_output(output), m_err(err), m_answer(answer)
    {}

    [[nodiscard]] MessageReply show(const Message &message) override;

    /// A command begins; see `standingAnswer`.
    void beginCommand();
    /// Another window was shown in between.
    void noteWindow() { m_last.clear(); }

    QList<Answer> answers;
    QList<TypedInput> inputs;

private:
    Answer chooseAnswer(const Message &message);
    std::optional<Answer> standingAnswer(const Message &message);

    ObjectOutput &m_output;
    std::ostream &m_err;
    std::optional<Answer> m_answer;
    QSet<QString> m_settled; ///< messages of this command that the one answer was given to
    QString m_last;
};

/// Prints each file window and tells it what is queued; Cancel when nothing is.
class DriveFiles : public FileWindow
{
public:
    DriveFiles(ObjectOutput &output, std::ostream &err, DriveMessages &messages)
        : m_output(output), m_err(err), m_messages(messages)
    {}

    [[nodiscard]] FileReply show(const FileRequest &request) override;

    /// `filterIndex` below 0 leaves the entry as it stands.
    QList<FileReply> replies;

private:
    bool fits(FileReply &reply, const FileRequest &request);

    ObjectOutput &m_output;
    std::ostream &m_err;
    DriveMessages &m_messages;
};

/// A form stays open while the commands that follow act on it.
class DriveForms : public FormRunner
{
public:
    void runModal(Form &form) override;

    /// Carries out commands until the form is hidden or the script is over.
    std::function<void(Form &)> runCommands;
};

class DriveHelp : public HelpBrowser
{
public:
    explicit DriveHelp(ObjectOutput &output) : m_output(output) {}
    void open(const QString &page) override;

private:
    ObjectOutput &m_output;
};

class DriveSound : public Sound
{
public:
    explicit DriveSound(ObjectOutput &output) : m_output(output) {}
    void play(const QString &path) override;

private:
    ObjectOutput &m_output;
};

class DrivePrinter : public Printer
{
public:
    explicit DrivePrinter(ObjectOutput &output) : m_output(output) {}
    [[nodiscard]] bool isAvailable() const override { return true; }
    bool print(const QString &title, const QStringList &lines) override;

private:
    ObjectOutput &m_output;
};

/// A player that takes every file that is there and reports what it was told.
class ScriptedPlayer : public MediaPlayer
{
public:
    bool open(const QString &path) override;
    [[nodiscard]] QString fileName() const override { return m_fileName; }
    [[nodiscard]] double duration() const override { return reportedDuration; }
    [[nodiscard]] double position() const override { return reportedPosition; }
    void setPosition(double seconds) override { reportedPosition = seconds; }
    void play() override {}
    void pause() override {}
    void stop() override {}
    [[nodiscard]] QString missingText() const override { return {}; }

    double reportedDuration = 0;
    double reportedPosition = 0;

private:
    QString m_fileName;
};

/// The machine's clock until it is told a time; that one stands still.
class ScriptedClock : public Clock
{
public:
    [[nodiscard]] QDateTime now() const override
    {
        return time.isValid() ? time : QDateTime::currentDateTime();
    }

    QDateTime time;
};

/// Random numbers; the same ones after the same seed.
class SeededRandom : public RandomNumbers
{
public:
    [[nodiscard]] double next() override;
    void seed(std::uint32_t number) { m_engine.seed(number); }

private:
    std::mt19937 m_engine{std::random_device{}()};
};

/// The doors of a driven program.
struct DrivePorts
{
    DrivePorts(std::ostream &out, std::ostream &err, std::optional<Answer> answer);

    ObjectOutput output;
    DriveMessages messages;
    DriveFiles files;
    DriveForms forms;
    DriveHelp help;
    ScriptedPlayer player;
    DriveSound sound;
    DrivePrinter printer;
    FixedScreen screen;
    ScriptedClock clock;
    SeededRandom random;
};

} // namespace kavro
