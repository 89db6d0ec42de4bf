"""What happens in a folder, as soon as it happens."""

import ctypes
import os
import select
from pathlib import Path

from Tests.Desktop.waiting import PATIENCE_SECONDS

_MODIFIED, _MOVED_TO, _CREATED = 0x2, 0x80, 0x100


class FolderEvents:
    """Wakes up at the first change of a file in the folder, or of the folder itself."""

    def __init__(self, folder: Path) -> None:
        self._folder = folder

    def __enter__(self) -> "FolderEvents":
        library = ctypes.CDLL(None, use_errno=True)
        self._descriptor = library.inotify_init1(os.O_CLOEXEC)
        watch = library.inotify_add_watch(self._descriptor, os.fsencode(self._folder), _MODIFIED | _MOVED_TO | _CREATED)
        if min(self._descriptor, watch) < 0:
            raise OSError(ctypes.get_errno(), f"inotify of {self._folder}")
        return self

    def __exit__(self, *_: object) -> None:
        os.close(self._descriptor)

    def wait(self) -> None:
        ready, _, _ = select.select([self._descriptor], [], [], PATIENCE_SECONDS)
        if not ready:
            raise AssertionError(f"nothing happened in {self._folder}")
        os.read(self._descriptor, 65536)
