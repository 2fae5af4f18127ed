#pragma once

#include "core/ports.h"

namespace kavro {

// What the program asks of the machine that it runs on.

class DesktopScreen : public Screen
{
public:
    [[nodiscard]] QSize size() const override;
    [[nodiscard]] QStringList fonts() const override;
};

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

/// Plays nothing.
class SilentSound : public Sound
{
public:
    void play(const QString &) override {}
};

/// Stands where no player is.
class NoPlayer : public MediaPlayer
{
public:
    bool open(const QString &) override { return false; }
    [[nodiscard]] QString fileName() const override { return {}; }
    [[nodiscard]] double duration() const override { return 0; }
    [[nodiscard]] double position() const override { return 0; }
    void setPosition(double) override {}
    void play() override {}
    void pause() override {}
    void stop() override {}
    [[nodiscard]] QString missingText() const override;
};

} // namespace kavro
