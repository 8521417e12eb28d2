// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "tools/images/ContactSheet.h"
#include "tools/images/Pictures.h"

#include <QBuffer>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSaveFile>
#include <QTextStream>

namespace {

enum ExitCode { Success = 0, Failure = 1, BadUsage = 2 };

void complain(const QString& message)
{
    QTextStream(stderr) << "render_images: " << message << '\n';
}

bool savePng(const QImage& image, const QString& path)
{
    // Straight alpha is what the file holds; an opaque picture needs none.
    const bool opaque = !image.hasAlphaChannel() || image.pixelFormat().alphaSize() == 0;
    const QImage stored =
        image.convertToFormat(opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    QSaveFile file(path);
    constexpr int smallest = 0;
    if (!file.open(QIODevice::WriteOnly) || !stored.save(&file, "PNG", smallest) ||
        !file.commit()) {
        complain(QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
        return false;
    }
    return true;
}

bool handleBitmap(const QString& root, const Picture& picture, bool check)
{
    const QImage image = renderBitmap(root, picture);
    if (image.isNull()) {
        complain(QStringLiteral("%1 is missing or not a vector picture; restore it")
                     .arg(sourceOfBitmap(root, picture.file)));
        return false;
    }
    const QString path = root + QLatin1String("/resources/images/") + picture.file;
    if (!check) {
        return savePng(image, path);
    }
    if (!samePixels(image, QImage(path))) {
        complain(QStringLiteral("%1 differs from its source; run render_images again").arg(path));
        return false;
    }
    return true;
}

int handleBitmaps(const QString& root, bool check)
{
    bool good = true;
    for (const Picture& picture : libraryPictures()) {
        if (!isVector(picture.file)) {
            good = handleBitmap(root, picture, check) && good;
        }
    }
    return good ? Success : Failure;
}

int writeContactSheet(const QString& root)
{
    QString unreadable;
    const QImage sheet = contactSheet(root, &unreadable);
    if (sheet.isNull()) {
        complain(QStringLiteral("%1 is missing or not a picture; restore it").arg(unreadable));
        return Failure;
    }
    const QString path = root + QLatin1String("/docs/images/contact-sheet.png");
    return savePng(sheet, path) ? Success : Failure;
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Renders the bitmaps of resources/images from their vector sources."));
    parser.addHelpOption();
    const QCommandLineOption check(QStringLiteral("check"),
                                   QStringLiteral("Write nothing; compare pixel for pixel."));
    const QCommandLineOption sheet(QStringLiteral("contact-sheet"),
                                   QStringLiteral("Write docs/images/contact-sheet.png instead."));
    parser.addOptions({check, sheet});
    parser.addPositionalArgument(QStringLiteral("root"),
                                 QStringLiteral("The top folder of the source tree."));
    parser.process(application);
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 1 || (parser.isSet(check) && parser.isSet(sheet))) {
        complain(QStringLiteral("name the top folder of the source tree and at most one mode; "
                                "--help lists them"));
        return BadUsage;
    }
    if (!QFileInfo(arguments.first() + QLatin1String("/resources/sources")).isDir()) {
        complain(QStringLiteral("%1 holds no folder resources/sources; name the top folder of the "
                                "source tree")
                     .arg(arguments.first()));
        return BadUsage;
    }
    return parser.isSet(sheet) ? writeContactSheet(arguments.first())
                               : handleBitmaps(arguments.first(), parser.isSet(check));
}
