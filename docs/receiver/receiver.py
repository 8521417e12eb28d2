# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Takes the reports that envcheck posts, and keeps each of them once, in PostgreSQL.

A WSGI application for docs/report-upload.md. The environment names the database (PGHOST and so on) and
the file with the token (RECEIVER_TOKEN_FILE). envcheck must be in the PATH: it judges what came and makes
its row. Nothing that came is ever part of a command."""
import contextlib
import hmac
import json
import os
import subprocess

import psycopg2

MAX_BYTES = 4 * 1024 * 1024
JUDGE_SECONDS = 10
with open(os.environ["RECEIVER_TOKEN_FILE"], encoding="ascii") as token_file:
    AUTHORIZATION = ("Bearer " + token_file.read().strip()).encode()


def row_of(body):
    """The columns of docs/fleet.md; nothing if it is no report."""
    judge = subprocess.run(["envcheck", "report", "-", "--format", "jsonl"], input=body, check=False,
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=JUDGE_SECONDS)
    return json.loads(judge.stdout) if judge.returncode == 0 else None


def keep(row, body):
    """Whether it is new. Both tables have it, or none has."""
    with contextlib.closing(psycopg2.connect("")) as database, database, database.cursor() as cursor:
        cursor.execute("INSERT INTO reports (id, report) VALUES (%s, %s) ON CONFLICT DO NOTHING",
                       (row["id"], psycopg2.Binary(body)))
        is_new = cursor.rowcount == 1
        cursor.execute("INSERT INTO runs SELECT (jsonb_populate_record(NULL::runs, %s)).* "
                       "ON CONFLICT DO NOTHING", (json.dumps(row),))
        return is_new


def status_of(request):
    given = request.get("HTTP_AUTHORIZATION", "").encode("latin-1", "replace")
    if not hmac.compare_digest(given, AUTHORIZATION):
        return "401 Unauthorized"
    length = int(request.get("CONTENT_LENGTH") or 0)
    if length > MAX_BYTES:
        return "413 Content Too Large"
    body = request["wsgi.input"].read(length)
    try:
        document = json.loads(body)
        if isinstance(document, dict) and "code" in document:
            return "204 No Content"  # a code of the dialog; its report says more
        row = row_of(body)
        return "422 Unprocessable Content" if row is None else "201 Created" if keep(row, body) else "200 OK"
    except (ValueError, TypeError, RecursionError, psycopg2.DataError):
        return "422 Unprocessable Content"
    except (OSError, subprocess.TimeoutExpired, psycopg2.Error):
        return "503 Service Unavailable"  # envcheck keeps it, and comes again


def application(request, start_response):
    start_response(status_of(request), [("Content-Length", "0")])
    return []
