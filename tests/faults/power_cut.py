# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""What a disk may hold when the power goes, worked out from a journal of file calls.

The model is the least that the rules of fsync(2) leave: data is on the disk when its file was synced, a name when its folder was.
Anything else may or may not be there: names from the first to any, or all but one, or one alone; data not at all, half, as
zeros of the same length, or whole.
"""

from pathlib import Path

FOLDER = "a folder"


class Node:
    """A file without its names."""

    def __init__(self, data=b"", is_old=False):
        self.data = bytes(data)
        self.synced = self.data if is_old else b""

    def write(self, place, data):
        whole = self.data.ljust(place, b"\0")
        self.data = whole[:place] + data + whole[place + len(data):]

    def after(self, cut):
        """What is left of it. Where the data that was not waited for is all there, it is what was written."""
        if cut == "whole" or self.data == self.synced:
            return self.data
        if cut == "zeros":
            return b"\0" * len(self.data)
        added = len(self.data) - len(self.synced) if self.data.startswith(self.synced) else len(self.data)
        return self.data[:len(self.data) - (added + 1) // 2] if cut == "half" else self.synced


class Disk:
    """A folder as the program sees it, and as far as it is sure to be on the disk."""

    def __init__(self, folder):
        self._root = Path(folder)
        self.names = {}  # Path -> Node or FOLDER
        paths = [self._root, *self._root.rglob("*")] if self._root.exists() else []
        for path in paths:
            self.names[path] = FOLDER if path.is_dir() else Node(path.read_bytes(), is_old=True)
        self._sure = dict(self.names)
        self._pending = []  # changes of names that are not waited for yet: lists of (Path, Node, FOLDER or None)
        self._files = {}  # by descriptor
        self.is_done = False

    def play(self, line):
        call, *arguments = line.rstrip("\n").split("\t")
        getattr(self, "_" + call)(*arguments)

    def _change(self, *changes):
        for path, node in changes:
            self.names.pop(path, None)
            if node is not None:
                self.names[path] = node
        self._pending.append(changes)

    def _open(self, descriptor, path, create, unnamed, empty):
        path = Path(path)
        if unnamed:
            self._files[descriptor] = Node()
            return
        if create and path not in self.names:
            self._change((path, Node()))
        # A folder is known by its path.
        self._files[descriptor] = path if self.names[path] == FOLDER else self.names[path]
        if empty:
            self._files[descriptor].data = b""

    def _write(self, descriptor, place, data):
        self._files[descriptor].write(int(place), bytes.fromhex(data))

    def _truncate(self, descriptor, length):
        node = self._files[descriptor]
        node.data = node.data[:int(length)].ljust(int(length), b"\0")

    def _sync(self, descriptor):
        node = self._files[descriptor]
        if isinstance(node, Node):
            node.synced = node.data
            return
        waiting = []
        for changes in self._pending:
            # Of a file that is moved from folder to folder, the new name counts.
            if changes[-1][0].parent == node:
                apply(self._sure, changes)
            else:
                waiting.append(changes)
        self._pending = waiting

    def _unlink(self, path):
        self._change((Path(path), None))

    def _mkdir(self, path):
        self._change((Path(path), FOLDER))

    def _rename(self, source, path):
        node = self.names[Path(source)]
        # Of two names of one file, renaming one to the other leaves both.
        if self.names.get(Path(path)) is not node:
            self._change((Path(source), None), (Path(path), node))

    def _link(self, source, path):
        node = self._files[source.rsplit("/", 1)[1]] if source.startswith("/proc/") else self.names[Path(source)]
        self._change((Path(path), node))

    def _mark(self, _):
        self.is_done = True

    def states(self):
        """Each is the files that may be there, as a tuple of (name below the folder, content or FOLDER)."""
        count = len(self._pending)
        chosen = [self._pending[:many] for many in range(count + 1)]
        chosen += [self._pending[:i] + self._pending[i + 1:] for i in range(count)]
        chosen += [[changes] for changes in self._pending]
        for changes in chosen:
            names = dict(self._sure)
            for change in changes:
                apply(names, change)
            for cut in ("none", "half", "zeros", "whole"):
                yield self._left(names, cut)

    def _left(self, names, cut):
        files = []
        for path in sorted(names):
            if any(names.get(parent) != FOLDER for parent in path.parents if parent.is_relative_to(self._root)):
                continue
            node = names[path]
            files.append((str(path.relative_to(self._root)), node if node == FOLDER else node.after(cut)))
        return tuple(files)

    def seen(self):
        """What the program sees."""
        return self._left(self.names, "whole")


def apply(names, changes):
    for path, node in changes:
        names.pop(path, None)
        if node is not None:
            names[path] = node


def states_of(disk, journal):
    """All states that the disk may be in, one each, with whether the change was done by then."""
    states = dict.fromkeys((state, False) for state in disk.states())
    for line in journal:
        disk.play(line)
        states.update(dict.fromkeys((state, disk.is_done) for state in disk.states()))
    return list(states)


def make(folder, state):
    """Makes the folder so."""
    for name, content in state:
        path = Path(folder) / name
        if content == FOLDER:
            path.mkdir(exist_ok=True)
        else:
            path.write_bytes(content)
