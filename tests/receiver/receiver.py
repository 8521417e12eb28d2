#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""Runs docs/receiver/ under Apache, with PostgreSQL behind it, and posts to it by the program.

Usage: receiver.py DOCUMENTS PROGRAM BUILD"""
import glob
import http.client
import json
import os
import re
import shutil
import signal
import socket
import ssl
import subprocess
import sys
import tempfile
import time

sys.path.append(os.path.join(os.path.dirname(__file__), "../support"))
from postgresql import SERVER_USER, Server

TOKEN = "c2VjcmV0-of.the~room=="
SENDING = "Sending the report to "
MODULES = "/usr/lib/apache2/modules"
WAIT_SECONDS = 20
FRAME = """
ServerRoot {folder}
ServerName localhost
Listen 127.0.0.1:{port}
PidFile {folder}/apache.pid
ErrorLog {folder}/error.log
LogLevel warn
DefaultRuntimeDir {folder}
LoadModule mpm_event_module {modules}/mod_mpm_event.so
LoadModule authz_core_module {modules}/mod_authz_core.so
LoadModule reqtimeout_module {modules}/mod_reqtimeout.so
LoadModule ssl_module {modules}/mod_ssl.so
LoadModule wsgi_module {modules}/mod_wsgi.so
WSGISocketPrefix {folder}/wsgi
<Directory {folder}>
    Require all granted
</Directory>
Define RECEIVER {folder}/receiver.py
Define CERTIFICATE {folder}/certificate.pem
Define KEY {folder}/key.pem
Include {folder}/site.conf
"""


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


def wait_for(condition, what):
    end = time.monotonic() + WAIT_SECONDS
    while not condition():
        assert time.monotonic() < end, "no " + what
        time.sleep(0.05)  # nothing tells


def content_of(path):
    """Empty if it isn't there, or no file."""
    try:
        with open(path, encoding="utf-8", errors="replace") as file:
            return file.read()
    except OSError:
        return ""


def threads(process):
    """The names of its threads; none if it is over."""
    names = []
    for path in glob.glob("/proc/%d/task/*/comm" % process):
        names.append(content_of(path).strip())
    return names


class Receiver:
    """Apache with the receiver of the documents, as a user who isn't root."""

    def __init__(self, folder, documents, program_folder, database):
        self.folder = folder
        self.port = free_port()
        self.process = None
        for name in ("receiver.py", "site.conf"):
            shutil.copy(os.path.join(documents, "receiver", name), folder)
        self.write("token", TOKEN + "\n")
        self.write("apache.conf",
                   FRAME.format(folder=folder, port=self.port, modules=MODULES))
        subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2",
                        "-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost",
                        "-keyout", self.path("key.pem"), "-out", self.path("certificate.pem")],
                       check=True, stderr=subprocess.DEVNULL)
        self.user = {}
        if os.getuid() == 0:
            self.user = {"user": SERVER_USER, "group": SERVER_USER, "extra_groups": []}
            for name in ("", "token", "key.pem"):
                shutil.chown(self.path(name), SERVER_USER, SERVER_USER)
        self.environment = dict(os.environ, **database.environment(), HOME=folder,
                                RECEIVER_TOKEN_FILE=self.path("token"),
                                PATH=program_folder + ":" + os.environ["PATH"])

    def path(self, name):
        return os.path.join(self.folder, name)

    def write(self, name, text):
        with open(self.path(name), "w", encoding="utf-8") as file:
            file.write(text)

    def url(self):
        return "https://localhost:%d/reports" % self.port

    def start(self):
        self.process = subprocess.Popen(
            ["apache2", "-f", self.path("apache.conf"), "-DFOREGROUND"], start_new_session=True,
            env=self.environment, **self.user)
        wait_for(self.answers, "answer of the receiver; " + self.path("error.log"))

    def answers(self):
        assert self.process.poll() is None, content_of(self.path("error.log"))
        with socket.socket() as client:
            return client.connect_ex(("127.0.0.1", self.port)) == 0

    def signal(self, number):
        os.killpg(self.process.pid, number)

    def stop(self):
        if self.process and self.process.poll() is None:
            self.signal(signal.SIGTERM)
            self.process.wait(WAIT_SECONDS)

    def post(self, body, token=TOKEN):
        """The status, as another client gets it."""
        trust = ssl.create_default_context(cafile=self.path("certificate.pem"))
        client = http.client.HTTPSConnection("localhost", self.port, context=trust)
        client.request("POST", "/reports", body, {"Authorization": "Bearer " + token,
                                                  "Content-Type": "application/json"})
        return client.getresponse().status


def failures_in(error):
    """The lines of standard error, but that which tells that the program waits for an answer."""
    return [line for line in error.splitlines() if not line.startswith(SENDING)]


class Room:
    """A computer of the school: a home, and runs of the program in it."""

    def __init__(self, folder, program, receiver):
        self.home = folder
        self.program = program
        self.receiver = receiver
        os.mkdir(folder)
        self.outbox = os.path.join(folder, ".local/share/envcheck/reports/outbox")

    def token_file(self, token):
        path = os.path.join(self.home, "token")
        with open(path, "w", encoding="ascii") as file:
            file.write(token + "\n")
        os.chmod(path, 0o600)
        return path

    def start(self, token=TOKEN, is_trusting=True, options=("--unattended",)):
        environment = dict(os.environ, HOME=self.home, XDG_RUNTIME_DIR=self.home, LC_ALL="C.UTF-8")
        environment.pop("DBUS_SESSION_BUS_ADDRESS", None)
        environment.pop("SSL_CERT_FILE", None)
        if is_trusting:
            environment["SSL_CERT_FILE"] = self.receiver.path("certificate.pem")
        return subprocess.Popen(
            [self.program, "check", *options, "--report", os.path.join(self.home, "run.json"),
             "--report-url", self.receiver.url(), "--report-token-file", self.token_file(token)],
            env=environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def run_dialog(self):
        """The dialog, ended by a signal once the network was measured. Nothing is left out."""
        results = os.path.join(self.home, "results.json")
        process = self.start(options=("--redact", "none", "--results", results))
        wait_for(lambda: "delay" in content_of(results), "figures of the network")
        process.terminate()
        out, error = process.communicate(timeout=WAIT_SECONDS)
        assert process.returncode == 2 and failures_in(error) == [], error
        return out

    def start_short(self, **how):
        """A run that is ended by a signal once it measures, and reports what it knows by then."""
        process = self.start(**how)
        wait_for(lambda: process.poll() is not None or "sound" in threads(process.pid), "measuring")
        process.terminate()
        return process

    def run(self, is_whole=False, **how):
        """The lines of standard error about the upload."""
        before = self.last().get("id")
        while self.last().get("id") == before:  # a signal that came too soon leaves no report
            process = self.start(**how) if is_whole else self.start_short(**how)
            out, error = process.communicate(timeout=WAIT_SECONDS * 2)
            assert process.returncode in ((0, 1, 69) if is_whole else (2,)), error
        for text in (out, error, *self.contents()):
            assert TOKEN not in text, "the token is told"
        return [line for line in failures_in(error) if self.receiver.url() in line]

    def contents(self):
        for path in glob.glob(self.home + "/**", recursive=True, include_hidden=True):
            if os.path.basename(path) != "token":
                yield content_of(path)

    def last(self):
        return json.loads(content_of(os.path.join(self.home, "run.json")) or "{}")

    def waiting(self):
        return sorted(glob.glob(self.outbox + "/*.json"))

    def leave(self, name, document):
        """As an earlier run leaves a report."""
        with open(os.path.join(self.outbox, name), "w", encoding="utf-8") as file:
            json.dump(document, file)


def main():
    documents, program, build = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        installed = os.path.join(folder, "installed")
        subprocess.run(["cmake", "--install", build, "--prefix", installed], check=True,
                       stdout=subprocess.DEVNULL)
        os.mkdir(os.path.join(folder, "receiver"))
        with Server(folder) as database:
            receiver = Receiver(os.path.join(folder, "receiver"), documents,
                                os.path.join(installed, "bin"), database)
            try:
                Story(folder, documents, program, receiver, database).play()
            finally:
                receiver.stop()


class Story:
    """What happens between a computer and the receiver, in the order of the functions."""

    def __init__(self, folder, documents, program, receiver, database):
        self.receiver = receiver
        self.environment = dict(os.environ, **database.environment())
        self.room = Room(os.path.join(folder, "room"), program, receiver)
        with open(os.path.join(documents, "fleet.md"), encoding="utf-8") as file:
            schema = re.search(r"<!-- file: schema.sql -->\n```sql\n(.*?)```", file.read(), re.DOTALL)
        with open(os.path.join(documents, "receiver/schema.sql"), encoding="utf-8") as file:
            self.sql(schema.group(1) + file.read())

    def sql(self, query):
        return subprocess.run(["psql", "-AtqX", "-v", "ON_ERROR_STOP=1"], input=query, text=True,
                              env=self.environment, check=True,
                              stdout=subprocess.PIPE).stdout.strip()

    def rows_of(self, report):
        return self.sql("SELECT count(*) FROM runs JOIN reports USING (id) WHERE id = '%s'"
                        % report["id"])

    def play(self):
        for step in (self.server_is_down, self.server_is_up_again, self.killed_during_the_post,
                     self.wrong_token, self.stranger, self.dialog, self.posted_twice, self.hostile_text,
                     self.no_reports, self.huge_body, self.database_is_down):
            begin = time.monotonic()
            step()
            print("%s: %.1f s" % (step.__name__, time.monotonic() - begin), flush=True)

    def server_is_down(self):
        lines = self.room.run()
        assert len(lines) == 1 and "has not arrived" in lines[0], lines
        assert len(self.room.waiting()) == 1

    def server_is_up_again(self):
        missed = self.room.last()
        self.receiver.start()
        assert (lines := self.room.run(is_whole=True)) == [], lines
        assert self.room.waiting() == []
        for report in (missed, self.room.last()):
            assert self.rows_of(report) == "1", report["id"]
        kept = json.loads(bytes.fromhex(self.sql("SELECT encode(report, 'hex') FROM reports LIMIT 1")))
        assert kept["redaction"] == "personal" and not kept["system"].get("computer"), kept["system"]
        assert missed["redaction"] == "none" and missed["system"]["computer"]

    def killed_during_the_post(self):
        self.receiver.signal(signal.SIGSTOP)
        process = self.room.start_short()
        wait_for(self.room.waiting, "report in the outbox")
        for line in process.stderr:
            if line.startswith(SENDING):
                break  # and so it is told, too
        process.kill()
        process.communicate()
        lost = self.room.last()
        assert len(self.room.waiting()) == 1
        self.receiver.signal(signal.SIGCONT)
        assert self.room.run() == []
        assert self.rows_of(lost) == "1" and self.room.waiting() == []

    def wrong_token(self):
        lines = self.room.run(token="wrong")
        assert len(lines) == 1 and "the token is missing or wrong (HTTP 401)" in lines[0], lines
        refused = self.room.last()
        assert len(self.room.waiting()) == 1 and self.rows_of(refused) == "0"
        assert self.room.run() == []
        assert self.rows_of(refused) == "1"

    def stranger(self):
        lines = self.room.run(is_trusting=False)
        assert len(lines) == 1 and "has not arrived" in lines[0], lines
        assert len(self.room.waiting()) == 1 and self.rows_of(self.room.last()) == "0"
        assert self.room.run() == []

    def dialog(self):
        self.room.run_dialog()
        report = self.room.last()
        assert report["outcome"] == "leftEarly" and self.rows_of(report) == "1"
        assert report["system"]["computer"] == self.sql(
            "SELECT computer FROM runs WHERE id = '%s'" % report["id"])

    def posted_twice(self):
        body = json.dumps(dict(self.room.last(), id="twice"))
        assert [self.receiver.post(body), self.receiver.post(body)] == [201, 200]
        assert self.sql("SELECT count(*) FROM runs WHERE id = 'twice'") == "1"

    def hostile_text(self):
        text = "x'); DROP TABLE runs; -- $(touch x) `id` %s {} \\ \" <script> \x1b[31m \u202e \0"
        hostile = dict(self.room.last(), id="h'; DROP TABLE reports; --")
        hostile["system"] = {"computer": text, "account": "=cmd|' /C calc'!A0"}
        self.room.leave("hostile.json", hostile)
        assert self.room.run() == []
        computer, account = self.sql(
            "SELECT computer, account FROM runs WHERE id LIKE 'h%'").rsplit("|", 1)
        assert computer.startswith(text[:60]) and "\x1b" not in computer, computer
        assert account == "=cmd|' /C calc'!A0" or account == "' /C calc'!A0", account
        assert self.rows_of(self.room.last()) == "1"

    def no_reports(self):
        deep = "[" * 100000
        for body in ("", "{", "[]", "7", "null", deep, '{"format": "envcheck-report"}', b"\xff\xfe"):
            assert self.receiver.post(body) == 422, body
        assert self.receiver.post('{"version": 1, "id": "c", "code": 3}') == 204
        assert self.receiver.post("{}", token="") == 401

    def huge_body(self):
        huge = dict(self.room.last(), id="huge", language="x" * 5000000)
        try:
            assert self.receiver.post(json.dumps(huge)) == 413
        except (ssl.SSLError, ConnectionError):
            pass  # it need not read to the end
        assert self.sql("SELECT count(*) FROM reports WHERE id = 'huge'") == "0"

    def database_is_down(self):
        self.sql("ALTER TABLE reports RENAME TO elsewhere")
        lines = self.room.run()
        assert len(lines) == 1 and "HTTP 503" in lines[0], lines
        self.sql("ALTER TABLE elsewhere RENAME TO reports")
        assert self.room.run() == [] and self.room.waiting() == []


main()
