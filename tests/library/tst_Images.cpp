// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "host/tour/Contrast.h"
#include "tools/images/Pictures.h"

#include <QBitmap>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QLibrary>
#include <QPainter>
#include <QRegion>
#include <QSet>
#include <QSvgRenderer>
#include <QtTest>

#include <algorithm>
#include <cstdlib>

namespace {

const QRgb White = qRgb(255, 255, 255);
const QRgb PageGrey = qRgb(242, 242, 242);
const QRgb Green = qRgb(0, 146, 101);
const QRgb Red = qRgb(255, 74, 39);
constexpr int PictureCount = 44;

const QString Root = QStringLiteral(ENVCHECK_SOURCE_DIR);
const QString LibraryPrefix = QStringLiteral(":/Kestrel/Images/");
const QString HostPrefix = QStringLiteral(":/");

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage shown(const QString& path, const QSize& size)
{
    return isVector(path) ? renderVector(path, size) : QImage(path);
}

QImage shown(const QString& file)
{
    const auto same = [&file](const Picture& picture) { return picture.file == file; };
    const auto found = std::find_if(libraryPictures().begin(), libraryPictures().end(), same);
    return shown(LibraryPrefix + file, found->size);
}

QImage onGround(const QImage& picture, QRgb ground)
{
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter(&image).drawImage(0, 0, picture);
    return image;
}

int channelDistance(QRgb left, QRgb right)
{
    return std::max({std::abs(qRed(left) - qRed(right)), std::abs(qGreen(left) - qGreen(right)),
                     std::abs(qBlue(left) - qBlue(right))});
}

template <typename Predicate>
double shareOfPixels(const QImage& image, Predicate predicate)
{
    int hits = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            hits += predicate(image.pixel(x, y)) ? 1 : 0;
        }
    }
    return double(hits) / (image.width() * image.height());
}

// The share of pixels that stand out from the ground: 0 for a blank picture.
double inkOn(const QImage& picture, QRgb ground)
{
    constexpr int noticeable = 24;
    return shareOfPixels(onGround(picture, ground), [ground](QRgb pixel) {
        return channelDistance(pixel, ground) >= noticeable;
    });
}

double differingShare(const QImage& left, const QImage& right)
{
    constexpr int noticeable = 24;
    const QImage first = onGround(left, White);
    const QImage second = onGround(right, White);
    int hits = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            hits += channelDistance(first.pixel(x, y), second.pixel(x, y)) >= noticeable ? 1 : 0;
        }
    }
    return double(hits) / (first.width() * first.height());
}

double shareOfColour(const QImage& picture, QRgb colour)
{
    constexpr int tolerance = 2;
    return shareOfPixels(picture.convertToFormat(QImage::Format_ARGB32), [colour](QRgb pixel) {
        return qAlpha(pixel) == 255 && channelDistance(pixel, colour) <= tolerance;
    });
}

QRect inkedRect(const QImage& picture)
{
    return QRegion(QBitmap::fromImage(picture.createAlphaMask())).boundingRect();
}

} // namespace

class tst_Images : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void theLibraryHoldsTheseAndNoOthers();
    void everyBitmapHasASource();
    void size_data();
    void size();
    void isNotBlank_data();
    void isNotBlank();
    void bitmapIsRenderedFromItsSource_data();
    void bitmapIsRenderedFromItsSource();
    void isStoredUncompressed_data();
    void isStoredUncompressed();
    void sharpPictureIsRenderedFromItsSource_data();
    void sharpPictureIsRenderedFromItsSource();
    void verdictHasItsColour_data();
    void verdictHasItsColour();
    void statesDiffer_data();
    void statesDiffer();
    void playingFramesGrow();
    void handGrowsInThePulse();
    void whiteTextIsReadableOnTheBackground();

private:
    void addLibraryRows(bool vectors);
    void addHostRows();

    QLibrary m_library{QStringLiteral(ENVCHECK_LIBRARY_FILE)};
    QByteArray m_libraryContent;
};

// The pictures are read from the built library, as its users get them.
void tst_Images::initTestCase()
{
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    m_libraryContent = contentOf(m_library.fileName());
    QVERIFY(!m_libraryContent.isEmpty());
}

void tst_Images::addLibraryRows(bool vectors)
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Picture& picture : libraryPictures()) {
        if (vectors || !isVector(picture.file)) {
            QTest::newRow(qPrintable(picture.file)) << LibraryPrefix + picture.file << picture.size;
        }
    }
}

void tst_Images::addHostRows()
{
    for (const Picture& picture : hostPictures()) {
        QTest::newRow(qPrintable(picture.file)) << HostPrefix + picture.file << picture.size;
    }
}

void tst_Images::theLibraryHoldsTheseAndNoOthers()
{
    QStringList expected;
    for (const Picture& picture : libraryPictures()) {
        expected.append(picture.file);
    }
    expected.sort();
    QCOMPARE(expected.size(), PictureCount);
    for (const QString& folder : {LibraryPrefix, Root + QLatin1String("/resources/images")}) {
        QStringList actual = QDir(folder).entryList(QDir::Files);
        actual.sort();
        QCOMPARE(actual, expected);
    }
}

void tst_Images::everyBitmapHasASource()
{
    QSet<QString> left;
    const QString folder = Root + QLatin1String("/resources/sources/");
    for (const QString& file : QDir(folder).entryList(QDir::Files)) {
        left.insert(folder + file);
    }
    for (const Picture& picture : libraryPictures()) {
        if (!isVector(picture.file)) {
            const QString source = sourceOfBitmap(Root, picture.file);
            QVERIFY2(QFile::exists(source), qPrintable(source));
            left.remove(source);
        }
    }
    QCOMPARE(left.values(), QList<QString>());
}

void tst_Images::size_data()
{
    addLibraryRows(true);
    addHostRows();
}

void tst_Images::size()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    if (isVector(path)) {
        const QSvgRenderer renderer(path);
        QVERIFY(renderer.isValid());
        QCOMPARE(renderer.viewBox(), QRect(QPoint(0, 0), size));
        QCOMPARE(renderer.defaultSize(), size);
        return;
    }
    QImageReader reader(path);
    QCOMPARE(reader.format(), QByteArray("png"));
    const QImage image = reader.read();
    QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
    QCOMPARE(image.size(), size);
}

void tst_Images::isNotBlank_data()
{
    size_data();
}

void tst_Images::isNotBlank()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    const QImage picture = shown(path, size);
    constexpr double leastInk = 0.08;
    for (const QRgb ground : {White, PageGrey}) {
        const double ink = inkOn(picture, ground);
        QVERIFY2(ink >= leastInk, qPrintable(QString::number(ink)));
    }
}

void tst_Images::bitmapIsRenderedFromItsSource_data()
{
    addLibraryRows(false);
}

void tst_Images::bitmapIsRenderedFromItsSource()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    const QImage rendered = renderBitmap(Root, {path.mid(LibraryPrefix.size()), size});
    QVERIFY(!rendered.isNull());
    QVERIFY(samePixels(QImage(path), rendered));
}

void tst_Images::isStoredUncompressed_data()
{
    addLibraryRows(true);
}

void tst_Images::isStoredUncompressed()
{
    QFETCH(QString, path);
    const QByteArray file =
        contentOf(Root + QLatin1String("/resources/images/") + path.mid(LibraryPrefix.size()));
    QVERIFY(!file.isEmpty());
    QCOMPARE(contentOf(path), file);
    QVERIFY(m_libraryContent.contains(file));
}

void tst_Images::sharpPictureIsRenderedFromItsSource_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("factor");
    for (const Picture& picture : sharpPictures()) {
        for (const int factor : SharpFactors) {
            QTest::newRow(qPrintable(sharpName(picture.file, factor)))
                << picture.file << picture.size << factor;
        }
    }
}

void tst_Images::sharpPictureIsRenderedFromItsSource()
{
    QFETCH(QString, file);
    QFETCH(QSize, size);
    QFETCH(int, factor);
    const QString name = sharpName(file, factor);
    const QString path = Root + QLatin1String("/host/resources/sharp/") + name;
    const QByteArray list = contentOf(Root + QLatin1String("/host/resources/sharp.qrc"));
    QVERIFY(list.contains("<file alias=\"" + name.toUtf8() + "\">"));
    if (isVector(file)) {
        const QSvgRenderer renderer(path);
        QCOMPARE(renderer.defaultSize(), size * factor);
        const QImage drawn = renderVector(LibraryPrefix + file, size, factor);
        QVERIFY(samePixels(renderVector(path, size, factor), drawn));
        return;
    }
    QImage image;
    QVERIFY(image.loadFromData(contentOf(path)));
    QVERIFY(samePixels(image, renderBitmap(Root, {file, size}, factor)));
}

void tst_Images::verdictHasItsColour_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QRgb>("colour");
    for (const char* file : {"CheckOk.svg", "CheckOk.png", "status_ok.svg", "status_ok.png"}) {
        QTest::newRow(file) << QString::fromLatin1(file) << Green;
    }
    for (const char* file : {"Warning.svg", "Warning.png", "status_problem.svg",
                             "status_problem.png", "problem.svg", "problem.png"}) {
        QTest::newRow(file) << QString::fromLatin1(file) << Red;
    }
}

void tst_Images::verdictHasItsColour()
{
    QFETCH(QString, file);
    QFETCH(QRgb, colour);
    constexpr double aQuarter = 0.25;
    const double share = shareOfColour(shown(file), colour);
    QVERIFY2(share >= aQuarter, qPrintable(QString::number(share)));
}

void tst_Images::statesDiffer_data()
{
    QTest::addColumn<QStringList>("files");
    const auto row = [](const QString& files) {
        QTest::newRow(qPrintable(files)) << files.split(QLatin1Char(' '));
    };
    row(QStringLiteral("MicN.svg MinS.svg"));
    row(QStringLiteral("play.svg play_hover.svg play_checked.svg playing0.svg"));
    row(QStringLiteral("playing0.svg playing1.svg playing2.svg"));
    row(QStringLiteral("radio_checked.svg radio_unchecked.svg radio_disabled.svg"));
    row(QStringLiteral("radio_checked.png radio_unchecked.png radio_disabled.png"));
    row(QStringLiteral("CheckOk.svg Warning.svg"));
    row(QStringLiteral("status_ok.png status_problem.png problem.png"));
    row(QStringLiteral("no_mic.png no_headset.png"));
    row(QStringLiteral("groove.png subpage.png"));
    row(QStringLiteral("chunk_back.png chunk_front.png"));
}

void tst_Images::statesDiffer()
{
    QFETCH(QStringList, files);
    constexpr double noticeableShare = 0.02;
    for (int first = 0; first < files.size(); ++first) {
        for (int second = first + 1; second < files.size(); ++second) {
            const double share = differingShare(shown(files[first]), shown(files[second]));
            QVERIFY2(share >= noticeableShare,
                     qPrintable(files[first] + QLatin1Char(' ') + files[second] + QLatin1Char(' ') +
                                QString::number(share)));
        }
    }
}

// One wave more in each frame reads as sound that spreads.
void tst_Images::playingFramesGrow()
{
    double previous = 0;
    for (const char* file : {"playing0.svg", "playing1.svg", "playing2.svg"}) {
        const double lit = shareOfColour(shown(QLatin1String(file)), White);
        QVERIFY2(lit > previous, file);
        previous = lit;
    }
}

void tst_Images::handGrowsInThePulse()
{
    const QRect small = inkedRect(shown(QStringLiteral("hand_small.png")));
    const QRect big = inkedRect(shown(QStringLiteral("hand_big.png")));
    QVERIFY(big.width() > small.width());
    QVERIFY(big.height() > small.height());
}

// The welcome page's two white lines lie in the upper 70 % of the picture, at any size of the page.
// Below them a few lit windows may be brighter.
void tst_Images::whiteTextIsReadableOnTheBackground()
{
    const QImage back = shown(QStringLiteral("back.png"));
    const auto unreadable = [](QRgb pixel) {
        return Contrast::ratio(pixel, White) < Contrast::LeastOfText;
    };
    const QImage upper = back.copy(0, 0, back.width(), back.height() * 7 / 10);
    QCOMPARE(shareOfPixels(upper, unreadable), 0.0);
    constexpr double fewWindows = 0.005;
    const double share = shareOfPixels(back, unreadable);
    QVERIFY2(share < fewWindows, qPrintable(QString::number(share)));
}

QTEST_MAIN(tst_Images)
#include "tst_Images.moc"
