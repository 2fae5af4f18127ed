#pragma once

#include "core/ports.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace kavro::test {

/// Answers from a queue; without one the message gets its safest answer.
class ScriptedMessages : public MessageWindow
{
public:
    [[nodiscard]] MessageReply show(const Message &message) override;

    void answer(Answer next)
    {
        replies.append({.answer = next, .inputName = {}, .inputValue = {}});
    }

    QList<MessageReply> replies;
    QList<Message> shown;
    /// Runs while each message is open.
    std::function<void(const Message &)> during;
};

/// Replies from a queue; without one it is Cancel.
class ScriptedFiles : public FileWindow
{
public:
    [[nodiscard]] FileReply show(const FileRequest &request) override;

    /// OK with that path; an index below 0 leaves the filter as it stands.
    void choose(const QString &path, int filterIndex = -1);
    void chooseMediaName();
    void cancel() { replies.append(FileReply()); }

    QList<FileReply> replies;
    QList<FileRequest> shown;
};

/// Runs `during` and closes the form.
class ScriptedForms : public FormRunner
{
public:
    void runModal(Form &form) override;

    QStringList shown;
    std::function<void(Form &)> during;
};

class RecordedHelp : public HelpBrowser
{
public:
    void open(const QString &page) override { opened.append(page); }

    QStringList opened;
};

/// Plays every file, unless `missing` tells why not.
class FakePlayer : public MediaPlayer
{
public:
    bool open(const QString &path) override;
    [[nodiscard]] QString fileName() const override { return file; }
    [[nodiscard]] double duration() const override { return length; }
    [[nodiscard]] double position() const override { return place; }
    void setPosition(double seconds) override { place = seconds; }
    void play() override { calls.append(QStringLiteral("play")); }
    void pause() override { calls.append(QStringLiteral("pause")); }
    void stop() override { calls.append(QStringLiteral("stop")); }
    [[nodiscard]] QString missingText() const override { return missing; }

    QString file;
    double length = 0;
    double place = 0;
    QString missing;
    QStringList calls;
};

class RecordedSound : public Sound
{
public:
    void play(const QString &path) override { played.append(path); }

    QStringList played;
};

class RecordedPrinter : public Printer
{
public:
    [[nodiscard]] bool isAvailable() const override { return available; }
    bool print(const QString &title, const QStringList &lines) override;

    bool available = true;
    QStringList titles;
    QList<QStringList> printed;
};

class FakeScreen : public Screen
{
public:
    [[nodiscard]] QSize size() const override { return pixels; }
    [[nodiscard]] QStringList fonts() const override { return names; }

    QSize pixels{1280, 800};
    QStringList names{QStringLiteral("Arial"), QStringLiteral("Courier"),
                      QStringLiteral("Verdana")};
};

class FakeClock : public Clock
{
public:
    [[nodiscard]] QDateTime now() const override
    {
        const QDateTime read = time;
        time = time.addMSecs(step);
        return read;
    }

    mutable QDateTime time{QDate(2024, 3, 1), QTime(12, 30, 15)};
    int step = 0; ///< milliseconds from one reading to the next
};

/// Gives the same number until it is told another.
class FakeRandom : public RandomNumbers
{
public:
    [[nodiscard]] double next() override { return value; }

    double value = 0;
};

/// All doors of a program, scripted.
struct ScriptedPorts
{
    ScriptedMessages messages;
    ScriptedFiles files;
    ScriptedForms forms;
    RecordedHelp help;
    FakePlayer player;
    RecordedSound sound;
    RecordedPrinter printer;
    FakeScreen screen;
    FakeClock clock;
    FakeRandom random;
};

} // namespace kavro::test
