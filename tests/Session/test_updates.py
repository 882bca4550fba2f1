# SPDX-License-Identifier: MIT
"""An update is offered, put off, offered again and skipped."""

import http.server
import json
import threading
import time

from accessibility import BUTTON, DIALOG
from program import BriskoTest, main

FEED = {"latestVersion": "9.1.0", "releaseDate": "2026-05-04T10:00:00Z", "fileSizeBytes": 12_300_000,
        "downloadURL": "https://brisko.invalid/Brisko-9.1.0.tar.gz", "criticalUpdate": False,
        "releaseNotes": {"en": "Finds more, and is done sooner.", "de": "Findet mehr und ist schneller fertig."}}


class Feed(http.server.BaseHTTPRequestHandler):
    def do_GET(self):  # noqa: N802  (the library's name)
        self.server.asked += 1
        body = json.dumps(self.server.feed).encode()
        self.send_response(200)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


class Updates(BriskoTest):
    waits_for_scan = False

    def setUp(self):
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Feed)
        self.server.feed, self.server.asked = FEED, 0
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        self.addCleanup(self.server.server_close)
        self.addCleanup(self.server.shutdown)
        self.environment = {"BRISKO_APPCAST_URL": f"http://127.0.0.1:{self.server.server_port}/appcast.json"}
        super().setUp()

    def restart(self):
        self.brisko.stop()
        self.brisko = self.start()
        self.brisko.wait_for_window()

    def check_by_hand(self):
        self.brisko.open_page("Settings")
        self.brisko.click_button("Check for Updates")

    def test_offered_put_off_skipped(self):
        dialog = self.brisko.dialog("Update Available")
        texts = [element.name for element in dialog.everything()]
        self.assertIn("Version 9.1.0", texts)
        self.assertIn("May 4, 2026", texts)
        self.assertIn("12.3 MB", texts)
        self.assertTrue(any("Finds more" in text for text in texts), texts)
        for button in ("Download", "Skip This Version", "Remind Me Later"):
            self.assertTrue(list(dialog.matching(button, BUTTON)), button)

        self.brisko.answer("Update Available", "Remind Me Later")
        self.check_by_hand()
        self.brisko.answer("Update Available", "Remind Me Later")
        self.restart()
        self.brisko.answer("Update Available", "Skip This Version")

        self.restart()
        asked = self.server.asked
        while self.server.asked == asked:
            time.sleep(0.1)
        time.sleep(1)
        self.assertIsNone(self.brisko.find("Update Available", DIALOG), "a skipped version is not offered again")
        self.server.feed = {**FEED, "latestVersion": "9.2.0"}
        self.check_by_hand()
        self.brisko.dialog("Update Available")
        self.brisko.desktop.keys("Escape")
        self.brisko.wait_gone("Update Available", DIALOG)

    def test_says_when_there_is_none(self):
        self.brisko.answer("Update Available", "Remind Me Later")
        self.server.feed = {**FEED, "latestVersion": "1.0.0"}
        self.check_by_hand()
        self.brisko.toast("^You're up to date!$")
        self.server.feed = {"nothing": "of use"}
        self.check_by_hand()
        self.brisko.toast("^Can't reach the update server")


if __name__ == "__main__":
    main()
