// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>

class CheckPage;
class LumToolTip;
class QCustomComboBox;
class QLabel;
class QWidget;

// What the pages of the three devices have in common. GUI thread only.
namespace DeviceChecks {

int answerCode(bool isTested, bool isConfirmed); // 0 not answered, 1 yes, 2 no
int stateCode(bool works);                       // 1 works, 2 doesn't

// The page filters the box's events and owns its delegate. The box may have no line edit before.
void setUpComboBox(QCustomComboBox* combo, CheckPage* page);
void setUpPopup(QCustomComboBox* combo); // as the speaker and the microphone page have it
void setCaption(QCustomComboBox* combo, QLabel* caption); // for a screen reader
void setTabOrder(QCustomComboBox* combo, std::initializer_list<QWidget*> rest);
void placeAbove(LumToolTip* popup, const QWidget* widget); // with left edges aligned

QLabel* createHand(QWidget* parent); // points at a button and lets clicks through
void placeHand(QLabel* hand, const QWidget* button);
void showHand(QLabel* hand, bool isSmall);

} // namespace DeviceChecks
