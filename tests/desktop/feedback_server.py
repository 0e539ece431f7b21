"""The feedback server of the tests, as a process of its own."""

import json
import os
import socket
import subprocess
import sys

SERVER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "feedback", "server.py")
RECORDS = "/api/collections/feedback/records?status=200&body=eyJpZCI6InIxIn0%3D"  # {"id":"r1"}


def free_port():
    with socket.create_server(("127.0.0.1", 0)) as reserved:
        return reserved.getsockname()[1]


class FeedbackServer:
    """Answers every record with the identifier r1, over HTTPS on a port of the loopback address."""

    def __init__(self, folder, port):
        self._process = subprocess.Popen([sys.executable, SERVER, folder, str(port)],
                                         stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self._process.stdout.readline()

    def close(self):
        self._process.communicate(timeout=10)

    def requests(self):
        """Those since the last question, as a strict parser reads them."""
        self._process.stdin.write("\n")
        self._process.stdin.flush()
        return json.loads(self._process.stdout.readline())


def environment(folder, port):
    """What the program with other servers wants to know."""
    return {"QUILLET_TEST_FEEDBACK_ENDPOINT": f"https://127.0.0.1:{port}{RECORDS}",
            "QUILLET_TEST_AUTHORITY": os.path.join(folder, "authority.pem")}
