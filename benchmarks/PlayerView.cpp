// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#include "benchmarks/PlayerView.h"

PlayerView::PlayerView(const QString& node, bool isJpeg)
    : m_source(QStringLiteral("gst-pipeline: pipewiresrc target-object=%1 ! %2 ! videoscale ! "
                              "video/x-raw,width=306,height=172 ! videoconvert ! "
                              "ximagesink name=\"qtvideosink\"")
                   .arg(node, isJpeg ? QStringLiteral("image/jpeg ! jpegdec")
                                     : QStringLiteral("video/x-raw")))
{
    m_widget.resize(View::Size);
    m_widget.show();
    m_player.setVideoOutput(&m_widget);
    tellReady();
}

void PlayerView::go()
{
    m_player.setMedia(m_source);
    m_player.play();
}

void PlayerView::stop()
{
    m_player.stop();
}
