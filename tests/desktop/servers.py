"""Servers of our own in processes of their own, over HTTPS on the loopback address."""

import json
import os
import pathlib
import socket
import subprocess
import tempfile

_TESTS = pathlib.Path(__file__).parent.parent
_SPARKLE = "http://www.andymatuschak.org/xml-namespaces/sparkle"
_RECORDS = "/api/collections/feedback/records?status=200&body=eyJpZCI6InIxIn0%3D"  # {"id":"r1"}


def free_port():
    with socket.create_server(("127.0.0.1", 0)) as reserved:
        return reserved.getsockname()[1]


class _Server:
    """Runs from its construction until `close`, and leaves its authority in the folder."""

    def __init__(self, script, folder, *arguments):
        self._folder = folder
        # It ends with its input, however this process ends.
        self._process = subprocess.Popen(["/usr/bin/python3", str(_TESTS / script), folder,
                                          *map(str, arguments)],
                                         stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.ports = json.loads(self._process.stdout.readline())

    def close(self):
        self._process.communicate(timeout=10)

    def _ask(self):
        self._process.stdin.write("\n")
        self._process.stdin.flush()
        return json.loads(self._process.stdout.readline())


class FeedbackServer(_Server):
    """Answers every record with the identifier r1."""

    def __init__(self, folder, port):
        super().__init__("feedback/server.py", folder, port)

    def requests(self):
        """Those since the last question, as a strict parser reads them."""
        return self._ask()


def feedback_environment(folder, port):
    """For a program whose feedback goes there; the server may start later."""
    return {"QUILLET_TEST_FEEDBACK_ENDPOINT": f"https://127.0.0.1:{port}{_RECORDS}",
            "QUILLET_TEST_AUTHORITY": os.path.join(folder, "authority.pem")}


class Feed(_Server):
    """Publishes appcasts."""

    def __init__(self, session):
        super().__init__("platform/appcast/feed_server.py",
                         tempfile.mkdtemp(dir=session.folder))

    @property
    def environment(self):
        """For the program that reads this feed."""
        return {"QUILLET_TEST_FEED": f"https://127.0.0.1:{self.ports['https']}/appcast.xml",
                "QUILLET_TEST_AUTHORITY": os.path.join(self._folder, "authority.pem")}

    def publish(self, version, page="https://quillet.invalid/download", notes=""):
        self.publish_text(
            f'<rss version="2.0" xmlns:sparkle="{_SPARKLE}"><channel><item><link>{page}</link>'
            f"<sparkle:version>{version}</sparkle:version>"
            f"<description><![CDATA[{notes}]]></description></item></channel></rss>")

    def publish_text(self, text):
        with open(os.path.join(self._folder, "appcast.xml"), "w", encoding="utf-8") as file:
            file.write(text)

    def requests(self):
        """How many came so far."""
        return self._ask()["requests"]
