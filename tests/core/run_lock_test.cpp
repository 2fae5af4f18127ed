#include "core/run_lock.h"

#include "tests/core/file_support.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace kavro {
namespace {

void makeOld(const QString &path)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    EXPECT_TRUE(file.setFileTime(QDateTime::currentDateTime().addDays(-3),
                                 QFileDevice::FileModificationTime));
}

TEST(RunLock, IsTheRunningProgramsForDays)
{
    const TestFolder folder;
    const QString path = folder.path("1.lock");
    auto held = takeRunLock(path);
    ASSERT_TRUE(held);
    makeOld(path);
    EXPECT_FALSE(takeRunLock(path));
    held.reset();
    EXPECT_EQ(folder.entries(), "");
    EXPECT_TRUE(takeRunLock(path));
}

TEST(RunLock, WhatAKilledProgramLeftIsTakenOver)
{
    const TestFolder folder;
    for (const char *left : {"", "1\nkavro\nanother\nmachine\nthan this\n", "99999999\nkavro\n"}) {
        const QString path = folder.write("1.lock", left);
        makeOld(path);
        EXPECT_TRUE(takeRunLock(path)) << left;
        EXPECT_EQ(folder.entries(), "") << left;
    }
}

TEST(RunLock, NeedsAFolder)
{
    const TestFolder folder;
    EXPECT_FALSE(takeRunLock(folder.path("none/1.lock")));
}

} // namespace
} // namespace kavro
