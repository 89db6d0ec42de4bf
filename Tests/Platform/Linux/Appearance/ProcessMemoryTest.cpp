#include "Platform/ProcessMemory.h"

#include <QCollator>
#include <QFile>
#include <QLocale>
#include <QMap>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// What the process has in its memory, in kilobytes.
struct Resident {
    /// As it is in its file.
    qint64 clean = 0;
    qint64 dirty = 0;
};

/// By the addresses, as proc(5) describes /proc/PID/smaps: of all files with that in their path, or of everything.
QMap<QByteArray, Resident> residentOf(const QByteArray &file)
{
    QMap<QByteArray, Resident> all;
    QFile maps(u"/proc/self/smaps"_s);
    EXPECT_TRUE(maps.open(QIODevice::ReadOnly));
    QByteArray addresses;
    for (QByteArray line = maps.readLine(); !line.isEmpty(); line = maps.readLine()) {
        const QByteArrayList words = line.simplified().split(' ');
        if (!words.first().endsWith(':'))
            addresses = words.mid(5).join(' ').contains(file) ? words.first() : QByteArray();
        else if (!addresses.isEmpty() && words.first().endsWith("_Clean:"))
            all[addresses].clean += words.at(1).toLongLong();
        else if (!addresses.isEmpty() && words.first().endsWith("_Dirty:"))
            all[addresses].dirty += words.at(1).toLongLong();
    }
    return all;
}

Resident sum(const QMap<QByteArray, Resident> &all)
{
    Resident sum;
    for (const Resident &each : all) {
        sum.clean += each.clean;
        sum.dirty += each.dirty;
    }
    return sum;
}

bool comesBefore(const QString &one, const QString &other)
{
    return QCollator(QLocale(QLocale::German)).compare(one, other) < 0;
}

TEST(ProcessMemory, CodeThatIsNotInUseIsGivenBackAndWorksAfterwards)
{
    EXPECT_TRUE(comesBefore(u"Zoe"_s, u"Zürich"_s));
    // The library that compares, which looking for it doesn't need.
    ASSERT_GT(sum(residentOf("libicui18n")).clean, 500);
    ProcessMemory::giveBack();
    // The rest may be written to.
    EXPECT_LT(sum(residentOf("libicui18n")).clean, 100);
    EXPECT_TRUE(comesBefore(u"Zoe"_s, u"Zürich"_s));
}

TEST(ProcessMemory, WhatTheLinkerHasWrittenStays)
{
    // Among it are the addresses of other libraries' functions, which by now may only be read.
    const QMap<QByteArray, Resident> before = residentOf("libQt6Core");
    ASSERT_GT(sum(before).dirty, 0);
    ProcessMemory::giveBack();
    const QMap<QByteArray, Resident> after = residentOf("libQt6Core");
    for (auto mapping = before.begin(); mapping != before.end(); ++mapping)
        EXPECT_GE(after.value(mapping.key()).dirty, mapping->dirty) << mapping.key().toStdString();
}

} // namespace
} // namespace vantrel
