// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <LumWidgets/LumWidgetsExport.h>
#include <QComboBox>

// The client's combo box: editable, with a popup of its own width; a click on the line edit may
// open the popup. With entries and none of them chosen it says that the device isn't connected.
// GUI thread only.
class LUMWIDGETS_EXPORT QCustomComboBox : public QComboBox
{
    Q_OBJECT
    Q_DISABLE_COPY(QCustomComboBox)

public:
    // The flag is for the client's other boxes and has no meaning here.
    explicit QCustomComboBox(QWidget* parent, bool isThemed = true);
    ~QCustomComboBox() override;

    void setPopupWidth(int pixels);
    void setEnableClickLineEdit(bool enabled);

    void showPopup() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool takesClick(QEvent* event);
    bool isShowingAbsence() const;

    int m_popupWidth = 0;
    bool m_isPressed = false; // the line edit, by the left button
};
