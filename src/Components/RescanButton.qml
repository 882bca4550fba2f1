// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import Brisko.Theme

// Starts a scan again; turns and rests while one runs.
PrimaryButton {
    property bool isScanning: false

    text: Texts.of("Rescan")
    symbol: "arrow.clockwise"
    turning: isScanning
    enabled: !isScanning
}
