#!/usr/bin/env python3
"""A feedback server for tests, on the loopback address only. It knows nothing of the client: the
request comes from the standard library's HTTP server, bodies are read by its JSON and MIME parsers.

server.py FOLDER [PORT]   makes certificates in FOLDER unless they are there, prints one line of
                          JSON with the ports, and then answers each line on standard input with the
                          requests since the last one. Ends when standard input does. PORT is for
                          HTTPS; any without it.

What it answers is the client's to say, in the query of the URL:
  status=N body=BASE64 header=NAME:VALUE   an answer, whole
  missing=N                                the same, and the connection dropped N bytes too early
  end=drop | end=silent                    no answer: the connection dropped, or left open
"""

import base64
import email.parser
import email.policy
import http.server
import json
import pathlib
import ssl
import subprocess
import sys
import threading
import socket
import urllib.parse

STRICT = email.policy.HTTP.clone(raise_on_defect=True)


def base64_text(data):
    return base64.b64encode(data).decode()


def parsed(content_type, body):
    """What the body says, or why it is not well formed."""
    try:
        if content_type == "application/json":
            return {"json": json.loads(body.decode("utf-8", "strict"))}
        head = b"MIME-Version: 1.0\r\nContent-Type: " + content_type.encode() + b"\r\n\r\n"
        message = email.parser.BytesParser(policy=STRICT).parsebytes(head + body)
        return {"parts": [{
            "name": part.get_param("name", header="content-disposition"),
            "filename": part.get_filename(),
            "headers": [f"{name}: {value}" for name, value in part.items()],
            "data": base64_text(part.get_payload(decode=True)),
        } for part in message.iter_parts()]}
    except Exception as error:  # whatever it is, the test is to read it
        return {"malformed": repr(error)}


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    timeout = 20

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"]))
        with self.server.lock:
            self.server.requests.append({
                "path": urllib.parse.urlsplit(self.path).path,
                "headers": {name.lower(): value for name, value in self.headers.items()},
                "body": base64_text(body),
                **parsed(self.headers["Content-Type"], body),
            })
        wish = dict(urllib.parse.parse_qsl(urllib.parse.urlsplit(self.path).query))
        if wish.get("end") == "drop":
            self.close_connection = True
        elif wish.get("end") == "silent":
            self.rfile.read(1)  # until the client has had enough
        else:
            self.answer(wish)

    def answer(self, wish):
        body = base64.urlsafe_b64decode(wish.get("body", ""))
        self.send_response(int(wish["status"]))
        self.send_header("Content-Length", str(len(body)))
        if "header" in wish:
            self.send_header(*wish["header"].split(":", 1))
        self.end_headers()
        missing = int(wish.get("missing", 0))
        self.wfile.write(body[:len(body) - missing])
        self.close_connection = self.close_connection or missing > 0

    def log_message(self, *_):
        pass


class Server(http.server.ThreadingHTTPServer):
    lock = threading.Lock()
    requests = []

    def handle_error(self, *_):
        pass  # a client that hangs up, or refuses our certificate, is what the test is about


def run(command):
    subprocess.run(command, check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, timeout=20)


def make_certificate(folder, name, *options):
    if (folder / f"{name}.pem").exists():
        return
    run(["openssl", "req", "-x509", "-nodes", "-days", "2", "-newkey", "ec",
         "-pkeyopt", "ec_paramgen_curve:P-256", "-subj", f"/CN={name}",
         "-keyout", folder / f"{name}.key", "-out", folder / f"{name}.pem", *options])


def serve(certificate=None, port=0):
    server = Server(("127.0.0.1", port), Handler)
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
    make_certificate(folder, "right", *signed, "-addext", "subjectAltName=IP:127.0.0.1")
    make_certificate(folder, "other", *signed, "-addext", "subjectAltName=DNS:other.invalid")
    mute = socket.create_server(("127.0.0.1", 0))  # connects, and says nothing ever after
    port = int(sys.argv[2]) if len(sys.argv) > 2 else 0
    print(json.dumps({"http": serve(), "https": serve(folder / "right.pem", port),
                      "otherName": serve(folder / "other.pem"), "mute": mute.getsockname()[1]}),
          flush=True)
    for _ in sys.stdin:
        with Server.lock:
            print(json.dumps(Server.requests), flush=True)
            Server.requests.clear()


main()
