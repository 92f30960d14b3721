"""What tools/setup.sh does when the installer fails, with an installer that fails as it is told."""

import os
import subprocess
import tempfile
import unittest
from pathlib import Path

SETUP = Path(__file__).resolve().parents[2] / "tools/setup.sh"

# Stands for each program that the script asks or that changes the system.
FAKE = r"""#!/bin/bash
case ${0##*/} in
  dpkg) echo i386 ;;
  sudo) exec "$@" ;;
  systemd-detect-virt) exit "$NO_CONTAINER" ;;
  apt-cache)
    if [ "$1" = depends ]; then
      printf 'wine32:i386\n  Depends: libtwin\nlibtwin:i386\nlibtool:i386\n'
    else
      printf 'Package: libtwin\nSource: twin (0.9)\nVersion: 1.0\nMulti-Arch: same\n\n'
      printf 'Package: libtool\nVersion: 1.0\nMulti-Arch: foreign\n'
    fi ;;
  apt-get)
    echo "$@" >>"$FOLDER/calls"
    case $* in
      *\ update*) ;;
      *-s*Preferences=*)
        printf 'The following packages will be DOWNGRADED:\n  %s\n1 downgraded\n' "$BACK" ;;
      *Preferences=*)
        [[ $* =~ Preferences=([^ ]*) ]]
        cp "${BASH_REMATCH[1]}" "$FOLDER/pins" ;;
      *) echo "$FAILURE" && exit 100 ;;
    esac ;;
  *) exit 1 ;;
esac
"""
UNMET = "The following packages have unmet dependencies:\n wine32:i386 : Depends: libtwin:i386"


class Setup(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        for name in "dpkg dpkg-query sudo systemd-detect-virt apt-cache apt-get".split():
            (self.folder / name).write_text(FAKE)
            (self.folder / name).chmod(0o755)

    def run_setup(self, *options, failure=UNMET, container=False, back="libtwin", ci=""):
        """Result, and what the installer was asked to change beside its plain way."""
        (self.folder / "calls").write_text("")
        environment = dict(
            os.environ, PATH=f"{self.folder}:{os.environ['PATH']}", FOLDER=str(self.folder), CI=ci,
            FAILURE=failure, BACK=back, NO_CONTAINER=str(int(not container)))
        result = subprocess.run([SETUP, "--demo", *options], env=environment, check=False,
                                capture_output=True, text=True)
        calls = (self.folder / "calls").read_text().splitlines()
        self.assertIn("install cmake", calls[1])
        return result, ["-s" in call.split() for call in calls[2:]]

    def test_a_busy_server_is_told_in_its_own_words(self):
        result, more = self.run_setup(failure="E: Failed to fetch: 503", container=True)
        self.assertEqual((result.returncode, more), (1, []))
        self.assertIn("503", result.stderr)

    def test_a_container_takes_twins_back_after_a_simulation(self):
        result, more = self.run_setup(container=True)
        self.assertEqual((result.returncode, more), (0, [True, False]), result.stderr)
        self.assertIn("DOWNGRADED:\n  libtwin\n", result.stdout)
        self.assertEqual((self.folder / "pins").read_text().split("\n\n")[:-1],
                         ["Package: src:twin libtwin\nPin: version 1.0\nPin-Priority: 1001"])
        last = (self.folder / "calls").read_text().splitlines()[-1]
        self.assertRegex(last, "--no-remove --allow-downgrades install cmake .* wine32:i386")

    def test_a_machine_of_somebody_is_left_alone_unless_it_is_said(self):
        result, more = self.run_setup()
        self.assertEqual((result.returncode, more), (1, [True]))
        self.assertIn("tools/setup.sh --demo --allow-downgrades", result.stderr)
        self.assertIn("DOWNGRADED:\n  libtwin\n", result.stdout)
        for said in ({"ci": "true"}, {"options": ["--allow-downgrades"]}, {"back": ""}):
            result, more = self.run_setup(*said.pop("options", []), **said)
            self.assertEqual((result.returncode, more), (0, [True, False]))

    def test_nothing_but_twins_goes_back(self):
        result, more = self.run_setup("--allow-downgrades", back="libtwin libtool")
        self.assertEqual((result.returncode, more), (1, [True]))
        self.assertIn("libtool would be downgraded", result.stderr)


if __name__ == "__main__":
    unittest.main()
