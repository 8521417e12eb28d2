// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
#pragma once

// One run of the check: opens the dialog of the library and watches the session. GUI thread only.
class CheckRun
{
public:
    void exec(); // returns when the dialog is closed

    bool wasPutOut() const { return m_wasPutOut; } // the engine ended the session

private:
    bool m_wasPutOut = false;
};
