"""Where a task lands: what the albums hold, and the files that it leaves."""

import json
import os
import shutil
import subprocess

from outside import await_


class Disk:
    """The albums of a home, and other places, seen without the program."""

    def __init__(self, bin_folder, home):
        self.nebctl = os.path.join(bin_folder, "nebctl")
        self.home = home
        self.documents = self.path("Documents", "NEB", "NEB Slide Show")
        self.pictures = self.path("Holiday")

    def path(self, *names):
        return os.path.join(self.home, *names)

    def records(self, folder=None):
        """All records, those of the journal included."""
        said = subprocess.run([self.nebctl, "dump", folder or self.documents], check=True,
                              capture_output=True, text=True)
        return json.loads(said.stdout)

    def albums(self, folder=None):
        return {each["AlbumName"]: each for each in self.records(folder)["Albums"]}

    def album(self, name, folder=None):
        return self.albums(folder)[name]

    def captions(self, album, folder=None):
        return [slide["SlideText"] for slide in self.album(album, folder)["Slides"]]

    def shows(self, album, folder=None):
        return {each["SlideShowName"]: each for each in self.album(album, folder)["SlideShows"]}

    def check(self, folder=None):
        """What is wrong with albums; empty where nothing is."""
        return subprocess.run([self.nebctl, "check", folder or self.documents, "--files"],
                              check=False, capture_output=True, text=True).stdout

    def named(self, begins):
        """Files of the home whose names begin so."""
        return [name for name in os.listdir(self.home) if name.startswith(begins)]

    @staticmethod
    def holds(path, words):
        with open(path, encoding="utf-8") as file:
            return words in file.read()

    def begins(self, name, bytes_):
        with open(self.path(name), "rb") as file:
            return file.read(len(bytes_)) == bytes_

    def setting(self, key):
        with open(os.path.join(self.documents, "QLM.ini"), encoding="utf-8") as file:
            lines = dict(line.strip().split("=", 1) for line in file if "=" in line)
        return lines.get(key)

    def size_of_picture(self, album, name):
        folder = self.path(self.documents, "Albums", str(self.album(album)["AlbumID"]), "Slides")
        said = subprocess.run(["identify", "-format", "%w %h", os.path.join(folder, name.lower())],
                              check=True, capture_output=True, text=True)
        return said.stdout.split()

    @staticmethod
    def copy(folder, to):
        shutil.copytree(folder, to)

    @staticmethod
    def becomes(what, is_so):
        """Waits until it is so on the disk."""
        await_(what, is_so)
