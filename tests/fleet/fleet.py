#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Runs docs/fleet.md as it stands, against SQLite and a PostgreSQL server of its own.

Usage: fleet.py DOCUMENT PROGRAM"""
import json
import os
import re
import subprocess
import sys
import tempfile

sys.path.append(os.path.join(os.path.dirname(__file__), "../support"))
from postgresql import Server  # pylint: disable=wrong-import-position

FOLDER_MODE = 0o755
COMPUTERS = 20


def blocks(document):
    """The marked blocks in their order: kind, name, text."""
    pattern = r"<!-- (run|file|question)(?:: (\S+))? -->\n```\w+\n(.*?)```\n"
    return re.findall(pattern, document, re.DOTALL)


def report(number):
    """Every third camera is busy; computer 5 says yes to a black picture."""
    is_busy = number % 3 == 0

    def check(kind, verdict="passed", device=""):
        return {"check": kind, "verdict": verdict, "answer": "yes", "deviceState": "works",
                "device": device, "measurements": [], "contradictions": []}

    network = check("network")
    if number % 4:
        network["measurements"] = [
            {"key": "delayMs", "status": "measured", "value": 20 + number},
            {"key": "lossPercent", "status": "measured", "value": number % 5}]
    camera = check("camera", "failed" if is_busy else "passed", "Camera %d, \"new\"" % (number % 2))
    if is_busy:
        camera["causes"] = ["busy"]
    if number == 5:
        camera["contradictions"] = ["yesToBlackPicture"]
    checks = [network, camera, check("speaker"), check("microphone", "notTested")]
    if number % 4 == 1:
        checks.append(check("loop", "notHeard" if number == 9 else "heard"))
    time = "2026-03-%02dT08:30:00.000Z" % (1 + number % 3)
    return {"format": "envcheck-report", "version": 1, "id": "run-%d" % number,
            "programVersion": "1.0.0", "started": time, "finished": time, "language": "en",
            "platform": "devices", "redaction": "none",
            "outcome": "failed" if is_busy else "passed",
            "system": {"computer": "pc-%02d" % number, "account": "=robin"},
            "checks": checks}


def shell(script, folder, environment):
    return subprocess.run(["bash", "-euo", "pipefail", "-c", script], cwd=folder, env=environment,
                          check=True, stdout=subprocess.PIPE, text=True).stdout


def answers(command, query, folder, environment):
    return subprocess.run(command, input=query, cwd=folder, env=environment, check=True,
                          stdout=subprocess.PIPE, text=True).stdout


def check_questions(questions, folder, environment):
    for query in questions:
        one = answers(["sqlite3", "-list", "fleet.db"], query, folder, environment)
        other = answers(["psql", "-AtqX"], query, folder, environment)
        print(query, one, sep="")
        assert one, "no answer: " + query
        assert one == other, "PostgreSQL says\n" + other
    assert len(questions) == 7, len(questions)


def loaded(folder, environment):
    """What PostgreSQL has, and empties it unless it was loaded from JSON lines, the last way."""
    rows = answers(["psql", "-Atq"], "SELECT count(*), min(account) FROM runs", folder, environment)
    if not os.path.exists(os.path.join(folder, "runs.jsonl")):
        answers(["psql", "-q"], "TRUNCATE runs", folder, environment)
    return rows.strip()


def run_document(text, folder, environment):
    count = 0
    questions = []
    accounts = []
    for kind, name, content in blocks(text):
        if kind == "question":
            questions.append(content)
        elif kind == "file":
            with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
                file.write(content)
        else:
            shell(content, folder, environment)
            shell(content, folder, environment)  # to load a second time does no harm
            count += 1
            if name == "postgresql":
                accounts.append(loaded(folder, environment))
    assert count == 6, count
    assert accounts == ["%d|'=robin" % COMPUTERS, "%d|=robin" % COMPUTERS], accounts
    for command in (["sqlite3", "fleet.db"], ["psql", "-q"]):
        with open(os.path.join(folder, "dashboard.sql"), encoding="utf-8") as file:
            answers(command, file.read(), folder, environment)
    check_questions(questions, folder, environment)


def main():
    document, program = sys.argv[1:]
    with open(document, encoding="utf-8") as file:
        text = file.read()
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, FOLDER_MODE)
        reports = os.path.join(folder, "reports")
        os.mkdir(reports)
        for number in range(COMPUTERS):
            with open("%s/%d.json" % (reports, number), "w", encoding="utf-8") as file:
                json.dump(report(number), file)
        with Server(folder) as server:
            environment = dict(os.environ, **server.environment(), HOME=folder,
                               PATH=os.path.dirname(program) + ":" + os.environ["PATH"])
            run_document(text, folder, environment)


main()
