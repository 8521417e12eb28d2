// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <CommEngine/HardwareMgr.h>
#include <QWidget>
#include <memory>
#include <vector>

class QComboBox;

// What every check has: whether the user has answered and how, a verdict, a list of problems, and
// results to record. The frame and the result page know the pages only through this. GUI thread
// only.
class CheckPage : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(CheckPage)

public:
    explicit CheckPage(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~CheckPage() override;

    // The order of these virtuals is fixed.
    virtual bool isPassed() const;                    // the page's verdict; here false
    virtual void saveResult();                        // to SystemTestingResult; here nothing
    virtual void updateDeviceState();                 // re-read when the page is left; here nothing
    virtual std::vector<QString> problemList() const; // one translated line each; here none
    virtual void reset();                             // back to unanswered

    bool eventFilter(QObject* watched, QEvent* event) override; // for device combo boxes

    bool isTested() const;
    QString problemText() const; // the problem lines, joined by line feeds

    void finishCheck(bool userConfirmed); // stores the answer, then emits complete()
    void setBlinkButton(QWidget* button); // not owned; null stops the blinking
    // Selects the item of that data; no item where none has it, which shows that the device isn't
    // in the list.
    void selectComboData(QComboBox* combo, const QString& value);

Q_SIGNALS:
    void complete();

protected:
    void timerEvent(QTimerEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    bool m_untested = true;
    bool m_userConfirmed = false; // means something only while m_untested is false

private:
    std::shared_ptr<HardwareMgr> m_hardwareMgr;
    QWidget* m_blinkButton = nullptr;
    int m_blinkTimerId = 0;
    int m_blinkCount = 0;
};
