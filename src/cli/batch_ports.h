#pragma once

#include "core/machine_ports.h"

#include <QString>

#include <optional>
#include <ostream>

namespace kavro {

/// Tells each message on the stream for people and answers it: with the one answer of the call
/// where the message offers it, else with its safest.
class BatchMessages : public MessageWindow
{
public:
    BatchMessages(std::ostream &err, std::optional<Answer> answer) : m_err(err), m_answer(answer) {}

    [[nodiscard]] MessageReply show(const Message &message) override;

    /// Tells a text of several lines: the first behind `subject`, the others below it.
    void tell(const QString &text);

    QString subject; ///< stands ahead of what is told: the file that is worked on
    int count = 0;   ///< what was told so far

private:
    std::ostream &m_err;
    std::optional<Answer> m_answer;
};

class NoFileWindow : public FileWindow
{
public:
    [[nodiscard]] FileReply show(const FileRequest &) override { return {}; }
};

/// Closes each form as its own close button would.
class ClosedForms : public FormRunner
{
public:
    explicit ClosedForms(BatchMessages &messages) : m_messages(messages) {}
    void runModal(Form &form) override;

private:
    BatchMessages &m_messages;
};

class NoHelp : public HelpBrowser
{
public:
    void open(const QString &) override {}
};

class NoPrinter : public Printer
{
public:
    [[nodiscard]] bool isAvailable() const override { return false; }
    bool print(const QString &, const QStringList &) override { return false; }
};

/// The same screen on every machine, so that a script gives the same everywhere.
class FixedScreen : public Screen
{
public:
    [[nodiscard]] QSize size() const override { return {1280, 800}; }
    [[nodiscard]] QStringList fonts() const override;
};

/// The doors of a verb that works without a script.
struct BatchPorts
{
    BatchPorts(std::ostream &err, std::optional<Answer> answer);

    BatchMessages messages;
    NoFileWindow files;
    ClosedForms forms;
    NoHelp help;
    NoPlayer player;
    NoSound sound;
    NoPrinter printer;
    FixedScreen screen;
    SystemClock clock;
    SystemRandom random;
};

} // namespace kavro
