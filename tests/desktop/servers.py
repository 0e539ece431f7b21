"""The tests' own web server in a process of its own, over HTTPS on the loopback address."""

import base64
import json
import os
import pathlib
import subprocess

_SCRIPT = pathlib.Path(__file__).parent.parent / "fakes/https_server.py"


class Server:
    """Runs from its construction until `close`, with its certificates in a folder. Answers each
    record with the identifier r1."""

    def __init__(self, folder):
        # It ends with its input, however this process ends.
        self._process = subprocess.Popen(["/usr/bin/python3", str(_SCRIPT), folder],
                                         stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        port = json.loads(self._process.stdout.readline())["https"]
        body = base64.urlsafe_b64encode(b'{"id":"r1"}').decode()
        self.environment = {
            "QUILLET_TEST_FEEDBACK_ENDPOINT": f"https://127.0.0.1:{port}/?status=200&body={body}",
            "QUILLET_TEST_AUTHORITY": os.path.join(folder, "authority.pem")}

    def close(self):
        self._process.communicate(timeout=10)

    def requests(self):
        """Those since the last question, as strict parsers read them."""
        self._process.stdin.write("\n")
        self._process.stdin.flush()
        return json.loads(self._process.stdout.readline())["requests"]
