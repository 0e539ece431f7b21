"""A server that publishes appcasts over HTTPS on the loopback address, and those who trust it."""

import json
import os
import pathlib
import subprocess
import tempfile

_SERVER = pathlib.Path(__file__).parent.parent / "platform/linux/appcast/feed_server.py"
_SPARKLE = "http://www.andymatuschak.org/xml-namespaces/sparkle"


class Feed:
    """Published from its construction until `close`."""

    def __init__(self, session):
        self._folder = tempfile.mkdtemp(dir=session.folder)
        # It ends with its input, however this process ends.
        self._process = subprocess.Popen(["/usr/bin/python3", str(_SERVER), self._folder],
                                         stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self._port = json.loads(self._process.stdout.readline())["https"]

    def close(self):
        self._process.stdin.close()
        self._process.wait(10.0)
        self._process.stdout.close()

    @property
    def environment(self):
        """For the program that reads this feed."""
        return {"QUILLET_TEST_FEED": f"https://127.0.0.1:{self._port}/appcast.xml",
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
        self._process.stdin.write(b"\n")
        self._process.stdin.flush()
        return json.loads(self._process.stdout.readline())["requests"]
