#include "Vantrel/Pictures/IconFamily.h"

#include <QCoreApplication>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace vantrel;

namespace {

QImage drawing(QSvgRenderer &renderer, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(image.rect()));
    return image;
}

int fail(const QString &message)
{
    QTextStream(stderr) << message << Qt::endl;
    return 1;
}

} // namespace

/// Makes the app's icon file of its drawing, while the app is built: `AppIconFile DRAWING.svg FILE.icns`.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return fail(u"Use: AppIconFile DRAWING.svg FILE.icns"_s);
    QSvgRenderer renderer(arguments.at(1));
    if (!renderer.isValid())
        return fail(arguments.at(1) + u" is no drawing that can be read."_s);
    const QByteArray content = iconFamilyFile([&renderer](int pixels) { return drawing(renderer, pixels); });
    QSaveFile file(arguments.at(2));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    return isWritten ? 0 : fail(arguments.at(2) + u": "_s + file.errorString());
}
