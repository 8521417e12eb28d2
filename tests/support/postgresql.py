# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
"""A PostgreSQL server for a test."""
import glob
import os
import subprocess

SERVER_USER = "postgres"


class Server:
    """A server below a folder, which only its test reaches. It doesn't run as root."""

    def __init__(self, folder):
        self.programs = sorted(glob.glob("/usr/lib/postgresql/*/bin"))[-1]
        self.folder = os.path.join(folder, "server")
        os.mkdir(self.folder)
        self.prefix = []
        if os.getuid() == 0:
            subprocess.run(["chown", SERVER_USER, self.folder], check=True)
            self.prefix = ["runuser", "-u", SERVER_USER, "--"]
        self.run("initdb", "-D", self.folder + "/data", "-U", SERVER_USER, "--auth=trust",
                 "--locale=C.UTF-8")

    def environment(self):
        """What its clients need."""
        return {"PGTZ": "UTC", "PGUSER": SERVER_USER, "PGDATABASE": SERVER_USER,
                "PGHOST": self.folder}

    def run(self, program, *arguments):
        subprocess.run([*self.prefix, os.path.join(self.programs, program), *arguments],
                       cwd=self.folder, check=True, stdout=subprocess.DEVNULL)

    def __enter__(self):
        self.run("pg_ctl", "-D", self.folder + "/data", "-w", "-l", self.folder + "/log", "-o",
                 "-k %s -c listen_addresses= -c fsync=off" % self.folder, "start")
        return self

    def __exit__(self, *_):
        self.run("pg_ctl", "-D", self.folder + "/data", "-w", "-m", "immediate", "stop")
