// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QVector>

// The library's pictures: what they are called, how large they are, and how bitmaps are made from
// the vectors. `root` is the top folder of the source tree. Errors come back as a null image.

struct Picture
{
    QString file; // below resources/images
    QSize size;   // in pixels; a vector's viewBox has the same size
};

// Every picture of the library, in the order of the contact sheet.
const QVector<Picture>& libraryPictures();

// Those that Qt would blur on a screen with a factor above 1. Qt looks for a file of the same name
// with @2x or @3x before its suffix. The library's list of files is fixed, so the host has them.
const QVector<Picture>& sharpPictures();
constexpr int SharpFactors[] = {2, 3};

QString sharpName(const QString& file, int factor); // below host/resources/sharp

// A vector that is as many times as large by itself. Empty if the file can't be read.
QByteArray enlargedVector(const QString& path, const QSize& size, int factor);

// The pictures of the host program, with paths below host/resources.
const QVector<Picture>& hostPictures();

bool isVector(const QString& file);

// The vector that a bitmap is rendered from: its own under resources/sources, or its twin of the
// same name and size under resources/images.
QString sourceOfBitmap(const QString& root, const QString& file);

// A vector file drawn by Qt's renderer onto a transparent ground of size * scale pixels.
QImage renderVector(const QString& path, const QSize& size, qreal scale = 1.0);
QImage renderBitmap(const QString& root, const Picture& picture, qreal scale = 1.0);

// Same size and the same colour in every pixel; colours behind a zero alpha don't count.
bool samePixels(const QImage& left, const QImage& right);
