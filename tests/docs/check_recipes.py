"""Reads what two forges are told to run: check_recipes.py OUTPUT, where in their build tests leave pictures."""
import os
import re
import subprocess
import sys
import unittest
from dataclasses import dataclass
from pathlib import Path

import yaml

ROOT = Path(__file__).resolve().parent.parent.parent
GITHUB = ROOT / ".github/workflows/test.yml"
GITLAB = ROOT / ".gitlab-ci.yml"
GITLAB_WORDS = {"default", "workflow", "stages", "variables", "include"}


def lines(value):
    return value.split("\n") if isinstance(value, str) else [line for each in value for line in lines(each)]


@dataclass
class Job:
    """What both forges' jobs have."""

    name: str
    image: str
    script: str
    limit: int  # in minutes
    kept: set
    always: bool  # whether it is kept also after a failure


def from_github(recipe):
    jobs = {}
    for name, job in recipe["jobs"].items():
        script = "\n".join(step["run"] for step in job["steps"] if "run" in step)
        keeping = [step for step in job["steps"] if step.get("uses", "").startswith("actions/upload-artifact@")]
        kept = {path for step in keeping for path in lines(step["with"]["path"]) if path}
        always = all(step.get("if") == "always()" for step in keeping)
        jobs[name] = Job(name, job["container"], script, job["timeout-minutes"], kept, always)
    return jobs


def from_gitlab(recipe):
    minutes = {"hours": 60, "hour": 60, "minutes": 1}
    jobs = {}
    for name, job in recipe.items():
        if name in GITLAB_WORDS:
            continue
        number, unit = job["timeout"].split()
        image = job.get("image", recipe["default"]["image"])
        jobs[name] = Job(name, image, "\n".join(lines(job["script"])), int(number) * minutes[unit],
                         set(job["artifacts"]["paths"]), job["artifacts"].get("when") == "always")
    return jobs


class Recipes(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.github = yaml.safe_load(GITHUB.read_text())
        cls.gitlab = yaml.safe_load(GITLAB.read_text())
        cls.forges = {"github": from_github(cls.github), "gitlab": from_gitlab(cls.gitlab)}
        cls.jobs = [job for jobs in cls.forges.values() for job in jobs.values()]

    def test_both_do_the_same(self):
        github, gitlab = self.forges["github"], self.forges["gitlab"]
        self.assertEqual(github.keys(), gitlab.keys())
        for name in github:
            for what in ("image", "limit", "kept", "always"):
                self.assertEqual(getattr(github[name], what), getattr(gitlab[name], what), (name, what))
            self.assertEqual(github[name].script.split(), gitlab[name].script.split(), name)

    def test_scripts_are_there(self):
        called = set()
        for job in self.jobs:
            subprocess.run(["bash", "-n"], input=job.script, text=True, check=True)
            for name in re.findall(r"(?<![\w.])\./([\w/-]+)", job.script):
                called.add(name)
                self.assertTrue(os.access(ROOT / name, os.X_OK), name)
        self.assertLessEqual({"test", "site", "packaging/build-deb"}, called)

    def test_they_run_where_the_readme_says(self):
        release = re.search(r"fresh Debian (\d+)", (ROOT / "README.md").read_text())[1]
        for job in self.jobs:
            self.assertEqual(job.image, f"debian:{release}", job.name)

    def test_what_failed_is_kept(self):
        for jobs in self.forges.values():
            test = jobs["test"]
            self.assertTrue(test.always)
            self.assertIn("build/test/" + sys.argv[1], test.kept)
            self.assertIn(re.search(r"^report=(.*)$", (ROOT / "test").read_text(), re.MULTILINE)[1], test.kept)
            self.assertIn(re.search(r"\| tee (\S+)", test.script)[1], test.kept)
            self.assertIn(re.search(r"Doxyfile (\S+)$", (ROOT / "site").read_text())[1], jobs["site"].kept)
            built = re.search(r"build_here (\S+)", (ROOT / "packaging/build-deb").read_text())[1]
            self.assertIn(built, {path.rstrip("/") for path in jobs["packages"].kept})

    def test_they_may_do_little(self):
        self.assertEqual(self.github["permissions"], {"contents": "read"})
        self.assertNotIn("pull_request_target", GITHUB.read_text())
        for path in (GITHUB, GITLAB):
            self.assertNotRegex(path.read_text(), r"(?i)secrets|token|password|privileged|write", path)
        for job in self.github["jobs"].values():
            self.assertNotIn("permissions", job)
            for step in job["steps"]:
                if step.get("uses", "").startswith("actions/checkout@"):
                    self.assertIs(step["with"]["persist-credentials"], False)
        for job in self.jobs:
            self.assertLessEqual(job.limit, 120, job.name)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
