#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace vantrel::test {

TemporaryFolder::TemporaryFolder()
{
    EXPECT_TRUE(folder_.isValid()) << folder_.errorString().toStdString();
    EXPECT_EQ(chmod(QFile::encodeName(path()).constData(), 0755), 0);
}

QString TemporaryFolder::path() const
{
    return folder_.path();
}

QString TemporaryFolder::path(const QString &relative) const
{
    return folder_.path() + u'/' + relative;
}

QString TemporaryFolder::makeFolder(const QString &relative) const
{
    EXPECT_TRUE(QDir().mkpath(path(relative)));
    return path(relative);
}

QString TemporaryFolder::write(const QString &relative, const QByteArray &content) const
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path(relative)).path()));
    QFile file(path(relative));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << file.errorString().toStdString();
    EXPECT_EQ(file.write(content), content.size());
    return path(relative);
}

QString TemporaryFolder::makePipe(const QString &relative) const
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path(relative)).path()));
    EXPECT_EQ(mkfifo(QFile::encodeName(path(relative)).constData(), 0644), 0);
    return path(relative);
}

QString TemporaryFolder::link(const QString &relative, const QString &destination) const
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path(relative)).path()));
    EXPECT_TRUE(QFile::link(destination, path(relative)));
    return path(relative);
}

QString TemporaryFolder::writeScript(const QString &relative, const QByteArray &body) const
{
    write(relative, "#!/bin/sh\n" + body);
    EXPECT_EQ(chmod(QFile::encodeName(path(relative)).constData(), 0755), 0);
    return path(relative);
}

QByteArray TemporaryFolder::read(const QString &relative) const
{
    QFile file(path(relative));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly))
        << path(relative).toStdString() << ": " << file.errorString().toStdString();
    return file.readAll();
}

ClosedPath::ClosedPath(const QString &path, unsigned mode) : path_(QFile::encodeName(path))
{
    struct stat status{};
    EXPECT_EQ(stat(path_.constData(), &status), 0);
    formerMode_ = status.st_mode & 07777;
    EXPECT_EQ(chmod(path_.constData(), mode), 0);
}

ClosedPath::~ClosedPath()
{
    chmod(path_.constData(), formerMode_);
}

} // namespace vantrel::test
