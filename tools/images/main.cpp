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

bool saveBytes(const QByteArray& bytes, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        complain(QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
        return false;
    }
    return true;
}

bool savePng(const QImage& image, const QString& path)
{
    // Straight alpha is what the file holds; an opaque picture needs none.
    const bool opaque = !image.hasAlphaChannel() || image.pixelFormat().alphaSize() == 0;
    const QImage stored =
        image.convertToFormat(opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    constexpr int smallest = 0;
    QBuffer buffer;
    return stored.save(&buffer, "PNG", smallest) && saveBytes(buffer.data(), path);
}

bool isSame(bool same, const QString& path)
{
    if (!same) {
        complain(QStringLiteral("%1 differs from its source; run render_images again").arg(path));
    }
    return same;
}

bool isReadable(bool readable, const QString& source)
{
    if (!readable) {
        complain(QStringLiteral("%1 is missing or not a vector picture; restore it").arg(source));
    }
    return readable;
}

bool handleBitmap(const QString& root, const Picture& picture, const QString& path, int factor,
                  bool check)
{
    const QImage image = renderBitmap(root, picture, factor);
    if (!isReadable(!image.isNull(), sourceOfBitmap(root, picture.file))) {
        return false;
    }
    return check ? isSame(samePixels(image, QImage(path)), path) : savePng(image, path);
}

bool handleVector(const QString& root, const Picture& picture, const QString& path, int factor,
                  bool check)
{
    const QString source = root + QLatin1String("/resources/images/") + picture.file;
    const QByteArray vector = enlargedVector(source, picture.size, factor);
    if (!isReadable(!vector.isEmpty(), source)) {
        return false;
    }
    if (check) {
        QFile file(path);
        return isSame(file.open(QIODevice::ReadOnly) && file.readAll() == vector, path);
    }
    return saveBytes(vector, path);
}

bool handleSharpPictures(const QString& root, bool check)
{
    bool good = true;
    for (const Picture& picture : sharpPictures()) {
        const auto handle = isVector(picture.file) ? handleVector : handleBitmap;
        for (const int factor : SharpFactors) {
            const QString path =
                root + QLatin1String("/host/resources/sharp/") + sharpName(picture.file, factor);
            good = handle(root, picture, path, factor, check) && good;
        }
    }
    return good;
}

int handleBitmaps(const QString& root, bool check)
{
    bool good = true;
    for (const Picture& picture : libraryPictures()) {
        if (!isVector(picture.file)) {
            const QString path = root + QLatin1String("/resources/images/") + picture.file;
            good = handleBitmap(root, picture, path, 1, check) && good;
        }
    }
    good = handleSharpPictures(root, check) && good;
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
