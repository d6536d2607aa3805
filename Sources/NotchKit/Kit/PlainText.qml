import QtQuick

/// A text, shown as it is: what others wrote is never taken for markup.
Text {
    textFormat: Text.PlainText
}
