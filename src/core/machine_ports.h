#pragma once

#include "core/ports.h"

namespace kavro {

// Doors that every shell fills alike: with the machine's own, or with nothing.

class SystemClock : public Clock
{
public:
    [[nodiscard]] QDateTime now() const override { return QDateTime::currentDateTime(); }
};

class SystemRandom : public RandomNumbers
{
public:
    [[nodiscard]] double next() override;
};

class NoSound : public Sound
{
public:
    void play(const QString &) override {}
};

/// Stands where no player is.
class NoPlayer : public MediaPlayer
{
public:
    /// @param missingText  why nothing plays, for a person
    explicit NoPlayer(const QString &missingText) : m_missingText(missingText) {}

    bool open(const QString &) override { return false; }
    [[nodiscard]] QString fileName() const override { return {}; }
    [[nodiscard]] double duration() const override { return 0; }
    [[nodiscard]] double position() const override { return 0; }
    void setPosition(double) override {}
    void play() override {}
    void pause() override {}
    void stop() override {}
    [[nodiscard]] QString missingText() const override { return m_missingText; }

private:
    QString m_missingText;
};

} // namespace kavro
