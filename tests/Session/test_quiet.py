# SPDX-License-Identifier: MIT
"""At rest it costs next to nothing."""

from program import BriskoTest, main

MOST = 1.0  # percent of one core
SECONDS = 20


class Quiet(BriskoTest):
    def measure(self):
        self.brisko.picture()
        # The toast of the first scan, the update check and the last drawing are over.
        self.brisko.processor_use(4)
        return self.brisko.processor_use(SECONDS)

    def test_on_each_page(self):
        for name in ("Overview", "Junk Cleaner", "Large Files", "Settings"):
            with self.subTest(name):
                self.brisko.open_page(name)
                # A gauge moves when other programs begin or end their work: that is no rest, and is looked at again.
                tries = (self.measure() for _ in range(3))
                self.assertIsNotNone(next((use for use in tries if use < MOST), None))

    def test_hidden(self):
        self.brisko.window().close()
        self.brisko.wait_for_no_window()
        self.brisko.processor_use(4)
        self.assertLess(self.brisko.processor_use(SECONDS), MOST)


if __name__ == "__main__":
    main()
