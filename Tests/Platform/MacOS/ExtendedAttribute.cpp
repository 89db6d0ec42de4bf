#include "Tests/Platform/ExtendedAttribute.h"

#include <QFile>

#include <sys/xattr.h>

namespace vantrel {

bool test::setAttribute(const QString &path, const char *name)
{
    return setxattr(QFile::encodeName(path).constData(), name, "x", 1, 0, 0) == 0;
}

bool test::hasAttribute(const QString &path, const char *name)
{
    return getxattr(QFile::encodeName(path).constData(), name, nullptr, 0, 0, 0) >= 0;
}

} // namespace vantrel
