#!/usr/bin/env python3
"""A web server for tests, on the loopback address only. It knows nothing of its clients: requests
come from the standard library's HTTP server, bodies are read by its JSON and MIME parsers.

https_server.py FOLDER    makes certificates in FOLDER, prints one line of JSON with the ports, and then
                          answers each line on standard input with the requests since the last one
                          and the bytes that went out. Ends when standard input does.

What it answers is the client's to say, in the query of the URL:
  status=N body=BASE64 header=NAME:VALUE missing=N   an answer, N bytes of it never sent
  end=drop|silent|circle|endless|packed|drip         the connection dropped or left open, a redirect
                                                     to itself, a body without end, 100 MB in a
                                                     small one, or a byte now and then
Ports: "https" with a certificate for 127.0.0.1, "other" with one for another host, "stranger" with
one of an authority of its own, "http" without any, "mute" that accepts connections and no more.
"""

import base64
import email.parser
import email.policy
import gzip
import http.server
import json
import pathlib
import socket
import ssl
import subprocess
import sys
import threading
import time
import urllib.parse

STRICT = email.policy.HTTP.clone(raise_on_defect=True)
BLOCK = b"x" * 65536


def base64_text(data):
    return base64.b64encode(data).decode()


def parsed(content_type, body):
    """What the body says, or why it is not well formed."""
    try:
        if content_type == "application/json":
            return {"json": json.loads(body.decode("utf-8", "strict"))}
        head = f"MIME-Version: 1.0\r\nContent-Type: {content_type}\r\n\r\n".encode()
        message = email.parser.BytesParser(policy=STRICT).parsebytes(head + body)
        return {"parts": {part.get_param("name", header="content-disposition"):
                          base64_text(part.get_payload(decode=True)) for part in message.iter_parts()}}
    except Exception as error:  # whatever it is, the test is to read it
        return {"malformed": repr(error)}


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    timeout = 20

    def do_GET(self):
        url = urllib.parse.urlsplit(self.path)
        body = self.rfile.read(int(self.headers.get("Content-Length", 0)))
        request = {"path": url.path, "body": base64_text(body),
                   "headers": {name.lower(): value for name, value in self.headers.items()}}
        if body:
            request.update(parsed(self.headers["Content-Type"], body))
        with Server.lock:
            Server.requests.append(request)
        wish = dict(urllib.parse.parse_qsl(url.query))
        end = wish.get("end")
        if end == "drop":
            self.close_connection = True
        elif end == "silent":
            self.rfile.read(1)  # until the client has had enough
        elif end == "circle":
            self.answer(302, b"", f"Location:{self.path}")
        elif end == "packed":
            self.answer(200, gzip.compress(b"x" * 100_000_000, 9), "Content-Encoding:gzip")
        elif end:
            self.pour(BLOCK, 0) if end == "endless" else self.pour(b" ", 0.05)
        else:
            self.answer(int(wish["status"]), base64.urlsafe_b64decode(wish.get("body", "")),
                        wish.get("header"), int(wish.get("missing", 0)))

    do_POST = do_GET

    def answer(self, status, body, header=None, missing=0):
        self.send_response(status)
        self.send_header("Content-Length", str(len(body)))
        if header:
            self.send_header(*header.split(":", 1))
        self.end_headers()
        self.write(body[:len(body) - missing])
        self.close_connection = self.close_connection or missing > 0

    def pour(self, piece, pause):
        self.send_response(200)
        self.end_headers()
        while True:
            self.write(piece)
            time.sleep(pause)

    def write(self, data):
        self.wfile.write(data)
        Server.sent += len(data)

    def log_message(self, *_):
        pass


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True
    lock = threading.Lock()
    requests = []
    sent = 0

    def handle_error(self, *_):
        pass  # a client that hangs up, or refuses our certificate, is what the test is about


def make_certificate(folder, name, *options):
    subprocess.run(["openssl", "req", "-x509", "-nodes", "-days", "2", "-newkey", "ec",
                    "-pkeyopt", "ec_paramgen_curve:P-256", "-subj", f"/CN={name}",
                    "-keyout", folder / f"{name}.key", "-out", folder / f"{name}.pem", *options],
                   check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, timeout=20)


def serve(certificate=None):
    server = Server(("127.0.0.1", 0), Handler)
    if certificate:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(certificate, certificate.with_suffix(".key"))
        # The handshake belongs into the connection's own thread.
        server.socket = context.wrap_socket(server.socket, server_side=True,
                                            do_handshake_on_connect=False)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return server.server_address[1]


def main():
    folder = pathlib.Path(sys.argv[1])
    make_certificate(folder, "authority")
    signed = ["-CA", folder / "authority.pem", "-CAkey", folder / "authority.key",
              "-addext", "basicConstraints=critical,CA:FALSE"]
    here, elsewhere = "subjectAltName=IP:127.0.0.1", "subjectAltName=DNS:other.invalid"
    make_certificate(folder, "right", *signed, "-addext", here)
    make_certificate(folder, "other", *signed, "-addext", elsewhere)
    make_certificate(folder, "stranger", "-addext", here)
    mute = socket.create_server(("127.0.0.1", 0))
    print(json.dumps({"https": serve(folder / "right.pem"), "http": serve(),
                      "other": serve(folder / "other.pem"), "mute": mute.getsockname()[1],
                      "stranger": serve(folder / "stranger.pem")}), flush=True)
    for _ in sys.stdin:
        with Server.lock:
            print(json.dumps({"requests": Server.requests, "sent": Server.sent}), flush=True)
            Server.requests.clear()


main()
