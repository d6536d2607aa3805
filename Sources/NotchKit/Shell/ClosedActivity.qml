import QtQuick
import Kestrune.Views

/// What shows beside the closed notch: the activity that the hub chose.
Item {
    id: activity

    required property NotchServices services
    required property NotchPresentation presentation
    required property real wing

    Loader {
        id: view

        anchors.fill: parent
    }

    function load() {
        if (presentation.activityFile === "")
            view.source = ""
        else
            view.setSource(presentation.activityFile, {
                model: presentation.activityModel,
                surroundings: services.surroundings,
                wing: Qt.binding(() => activity.wing)
            })
    }

    Component.onCompleted: load()

    Connections {
        target: activity.presentation

        function onActivityFileChanged() { activity.load() }
    }
}
