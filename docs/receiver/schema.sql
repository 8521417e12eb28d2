-- SPDX-FileCopyrightText: 2026 The EnvCheck authors
-- SPDX-License-Identifier: MIT
-- Beside the table "runs" of docs/fleet.md: what came, as it came.
CREATE TABLE IF NOT EXISTS reports (
    id TEXT PRIMARY KEY,
    received TIMESTAMPTZ NOT NULL DEFAULT now(),
    report BYTEA NOT NULL
);
