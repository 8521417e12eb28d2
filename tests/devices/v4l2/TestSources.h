// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <gst/gst.h>

// GStreamer sources in the place of v4l2src.
namespace TestSupport {

// White at the left, blue at the right.
inline const QByteArray Bars("videotestsrc is-live=true pattern=smpte100");

GstElement* makeElement(const QByteArray& description);
// Fails at its first frame, as a driver may.
GstElement* makeFailingElement(GstResourceError code, const QByteArray& details);
// JPEGs, and so many of the first ones end after a few bytes.
GstElement* makeElementWithBrokenStart(int brokenFrames);
int sourcesAlive(); // of all these

} // namespace TestSupport
