// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Brisko.Painted

// The brand mark, `size` points in the square.
BrandLogo {
    property int size: 28

    implicitWidth: size
    implicitHeight: size
    width: size
    height: size
    Accessible.ignored: true
}
