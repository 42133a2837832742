#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Serves a folder on this machine alone and says the address.

usage: serve.py FOLDER [PORT]     PORT: 0, the default, takes a free one
"""

import functools
import http.server
import sys


class Handler(http.server.SimpleHTTPRequestHandler):
    extensions_map = {
        **http.server.SimpleHTTPRequestHandler.extensions_map,
        ".js": "text/javascript",
        ".wasm": "application/wasm",
        ".otf": "font/otf",
        ".m4a": "audio/mp4",
        ".pack": "application/octet-stream",
    }

    def end_headers(self):
        self.send_header("Cache-Control", "no-cache")
        super().end_headers()

    def log_message(self, *_):
        pass


def main():
    if not 2 <= len(sys.argv) <= 3:
        sys.exit(__doc__)
    port = int(sys.argv[2]) if len(sys.argv) > 2 else 0
    handler = functools.partial(Handler, directory=sys.argv[1])
    with http.server.ThreadingHTTPServer(("127.0.0.1", port), handler) as server:
        print(f"The show plays at http://127.0.0.1:{server.server_port}/", flush=True)
        try:
            server.serve_forever()
        except KeyboardInterrupt:
            pass


main()
