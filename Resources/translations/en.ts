<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>notch</name>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>Reads the plan limits that Codex CLI saves in ~/.codex on this computer.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>Adds up the tokens that Claude Code logs in ~/.claude on this computer. Anthropic does not store your remaining limit locally.</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>Nothing leaves this computer.</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>Drop files here to keep them handy.
Drag them out anywhere, or send them to a device.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <translation>%1 cannot read your screenshots folder:
the folder’s permissions keep it out.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>Take a screenshot (Print) and it appears here.
Drag it into any app, or right-click for more.</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>Click to open · drag into any app · right-click to copy, send or add to the Shelf.</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Show in File Manager</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>Send to Device</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <translation>Allow %1 to control media players in
the desktop’s privacy settings.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>Play something in any media player
and it shows up here.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <translation>Allow %1 to use the camera in
the desktop’s privacy settings.</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>Kestrune is one piece of Fennivar, the all-in-one app that makes your computer work the way it should.</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>Open and close with Ctrl+Alt+Super+N</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>Everything stays on this computer. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</translation>
    </message>
</context>
</TS>
