"""A web server on the loopback that remembers who asked for what."""

import sys
import threading
from dataclasses import dataclass
from html import escape
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from typing import Any
from urllib.parse import quote, unquote

from Tests.Desktop.waiting import wait_for

_MARKING = "/mark/"
_COOKIE = "profile"


@dataclass(frozen=True)
class Request:
    """The target as it stood in the request's first line, and the mark that the browser's profile bears."""

    target: str
    mark: str | None


class PageServer:
    """Every path is a page whose title is the path's last name; those below /mark/ mark the profile with a cookie."""

    def __init__(self) -> None:
        self._requests: list[Request] = []
        requests = self._requests

        class Handler(_Handler):
            log = requests

        self._server = _Server(("127.0.0.1", 0), Handler)
        self._thread = threading.Thread(target=self._server.serve_forever, daemon=True)

    def __enter__(self) -> "PageServer":
        self._thread.start()
        return self

    def __exit__(self, *_: object) -> None:
        self._server.shutdown()
        self._server.server_close()
        self._thread.join()

    def link(self, target: str) -> str:
        return f"http://127.0.0.1:{self._server.server_port}{target}"

    def marking_link(self, mark: str) -> str:
        """Whoever opens it bears the mark in all later requests, also after a restart."""
        return self.link(_MARKING + quote(mark))

    @property
    def requests(self) -> list[Request]:
        return list(self._requests)

    def wait_for(self, link: str, after: int = 0) -> list[Request]:
        """The requests for a link, at least one, without the first so many of all requests; waits for the first."""
        target = link.removeprefix(self.link(""))
        return wait_for(
            lambda: [each for each in self.requests[after:] if each.target == target], f"a request for {target}"
        )


class _Server(ThreadingHTTPServer):
    daemon_threads = True

    def handle_error(self, request: Any, client_address: Any) -> None:
        """A browser that is being closed does not wait for its answers."""
        if not isinstance(sys.exception(), ConnectionError):
            super().handle_error(request, client_address)


class _Handler(BaseHTTPRequestHandler):
    log: list[Request]
    protocol_version = "HTTP/1.1"

    def do_GET(self) -> None:
        # Not self.path, which is not always as it was sent.
        target = self.requestline.split(" ")[1]
        self.log.append(Request(target, self._mark()))
        path = target.partition("?")[0]
        title = escape(unquote(path.rpartition("/")[2]))
        page = f"<!doctype html><title>{title}</title><p>{title}</p>".encode()
        self.send_response(200)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(page)))
        self.send_header("Cache-Control", "no-store")
        if path.startswith(_MARKING):
            mark = path.removeprefix(_MARKING)
            self.send_header("Set-Cookie", f"{_COOKIE}={mark}; Path=/; Max-Age=86400; SameSite=Lax")
        self.end_headers()
        self.wfile.write(page)

    def _mark(self) -> str | None:
        for item in (self.headers["Cookie"] or "").split("; "):
            name, _, value = item.partition("=")
            if name == _COOKIE:
                return unquote(value)
        return None

    def log_message(self, format: str, *arguments: object) -> None:
        """Nothing is printed: a failing test prints the requests."""
