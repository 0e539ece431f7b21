#!/usr/bin/env python3
"""Publishes feeds over HTTPS for tests, on the loopback address only.

feed_server.py FOLDER    makes certificates in FOLDER, prints one line of JSON with the ports, and
                         answers each line on standard input with the number of requests so far and
                         how many bytes of feeds went out. Ends when standard input does.

  /NAME             the file FOLDER/NAME, or 404
  /to/PORT/NAME     a redirect to NAME at that port; /circle one to itself
  /endless          a feed that never ends
  /packed           100 MB in a small compressed answer
  /drip             a byte now and then, for ever
  /silent           no answer
Ports: "https" with a certificate for 127.0.0.1, "other" with one for another host, "stranger" with
one of an authority of its own, "http" without any.
"""

import gzip
import http.server
import json
import pathlib
import ssl
import subprocess
import sys
import threading
import time

FEED_START = b"<rss><channel><item><description>"
BLOCK = b"x" * 65536


class Handler(http.server.BaseHTTPRequestHandler):
    timeout = 60

    def do_GET(self):
        self.server.requests.append(self.path)
        parts = self.path.strip("/").split("/")
        special = {"endless": self.endless, "packed": self.packed, "drip": self.drip,
                   "silent": self.silent}.get(parts[0])
        if special:
            special()
        elif parts[0] == "to":
            self.redirect("https" if parts[1] != self.server.ports["http"] else "http",
                          parts[1], parts[2])
        elif parts[0] == "circle":
            self.redirect("https", self.server.ports["https"], "circle")
        else:
            self.file(self.server.folder / parts[0])

    def file(self, path):
        if not path.is_file():
            self.send_error(404)
            return
        self.start()
        self.write(path.read_bytes())

    def redirect(self, scheme, port, name):
        self.send_response(302)
        self.send_header("Location", f"{scheme}://127.0.0.1:{port}/{name}")
        self.send_header("Content-Length", "0")
        self.end_headers()

    def endless(self):
        self.start()
        self.write(FEED_START)
        for _ in range(100 * 1024 * 1024 // len(BLOCK)):
            self.write(BLOCK)

    def packed(self):
        self.start(("Content-Encoding", "gzip"))
        self.write(gzip.compress(FEED_START + b"x" * 100_000_000, 9))

    def drip(self):
        self.start()
        while True:
            self.write(b" ")
            time.sleep(0.05)

    def silent(self):
        self.rfile.read(1)  # until the client has had enough

    def start(self, *headers):
        self.send_response(200)
        for name, value in headers:
            self.send_header(name, value)
        self.end_headers()

    def write(self, data):
        self.wfile.write(data)
        Server.sent += len(data)

    def log_message(self, *_):
        pass


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True
    requests = []
    ports = {}
    sent = 0

    def handle_error(self, *_):
        pass  # a client that hangs up, or refuses our certificate, is what the test is about


def make_certificate(folder, name, *options):
    subprocess.run(["openssl", "req", "-x509", "-nodes", "-days", "2", "-newkey", "ec",
                    "-pkeyopt", "ec_paramgen_curve:P-256", "-subj", f"/CN={name}",
                    "-keyout", folder / f"{name}.key", "-out", folder / f"{name}.pem", *options],
                   check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, timeout=20)


def serve(folder, certificate=None):
    server = Server(("127.0.0.1", 0), Handler)
    server.folder = folder
    if certificate:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(folder / f"{certificate}.pem", folder / f"{certificate}.key")
        # The handshake belongs into the connection's own thread.
        server.socket = context.wrap_socket(server.socket, server_side=True,
                                            do_handshake_on_connect=False)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return str(server.server_address[1])


def main():
    folder = pathlib.Path(sys.argv[1])
    make_certificate(folder, "authority")
    signed = ["-CA", folder / "authority.pem", "-CAkey", folder / "authority.key",
              "-addext", "basicConstraints=critical,CA:FALSE"]
    here, elsewhere = "subjectAltName=IP:127.0.0.1", "subjectAltName=DNS:other.invalid"
    make_certificate(folder, "right", *signed, "-addext", here)
    make_certificate(folder, "other", *signed, "-addext", elsewhere)
    make_certificate(folder, "stranger", "-addext", here)
    Server.ports.update(http=serve(folder), https=serve(folder, "right"),
                        other=serve(folder, "other"), stranger=serve(folder, "stranger"))
    print(json.dumps(Server.ports), flush=True)
    for _ in sys.stdin:
        print(json.dumps({"requests": len(Server.requests), "sent": Server.sent}), flush=True)


main()
