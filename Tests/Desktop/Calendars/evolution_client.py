#!/usr/bin/python3
"""Another program that uses Evolution Data Server, by the server's own library: reads a JSON object a line from
standard input, does what it says, and answers with one.

  {"do": "create", "name": N, "kind": "Calendar" or "Task List", "color": C, "ics": text}
  {"do": "create", ..., "file": path}   a list kept in that file, which clients may not change
  {"do": "texts", "uid": U}             every item of the calendar
  {"do": "change", "uid": U, "group": "Data Source", "key": "enabled", "value": false}
"""
import json
import sys
import time

import gi

gi.require_version("ECal", "2.0")
gi.require_version("EDataServer", "1.2")
gi.require_version("ICalGLib", "3.0")
from gi.repository import ECal, EDataServer, Gio, GLib, ICalGLib

DO_NOT_WAIT = 0xFFFFFFFF
registry = EDataServer.SourceRegistry.new_sync(None)
kinds = {"Calendar": ECal.ClientSourceType.EVENTS, "Task List": ECal.ClientSourceType.TASKS}
clients = {}


def create(request):
    source = EDataServer.Source.new(None, None)
    source.set_parent("local-stub")
    source.set_display_name(request["name"])
    extension = source.get_extension(request["kind"])
    extension.set_backend_name("local")
    extension.set_color(request["color"])
    if "file" in request:
        local = source.get_extension("Local Backend")
        local.set_custom_file(Gio.File.new_for_path(request["file"]))
        local.set_writable(False)
    uid = source.get_uid()
    registry.create_sources_sync([source], None)
    client = ECal.Client.connect_sync(registry.ref_source(uid) or source, kinds[request["kind"]], DO_NOT_WAIT, None)
    clients[uid] = client
    if "ics" in request:
        calendar = ICalGLib.Component.new_from_string(request["ics"])
        client.receive_objects_sync(calendar, ECal.OperationFlags.NONE, None)
    return {"uid": uid}


def known(uid):
    """The source, which the registry hears of a moment after it was made."""
    while not (source := registry.ref_source(uid)):
        GLib.MainContext.default().iteration(False)
        time.sleep(0.01)
    return source


def texts(request):
    return {"texts": [item.as_ical_string() for item in clients[request["uid"]].get_object_list_sync("#t", None)[1]]}


def change(request):
    source = known(request["uid"])
    if request["group"] == "Data Source":
        source.set_enabled(request["value"])
    else:
        source.get_extension(request["group"]).set_selected(request["value"])
    source.write_sync(None)
    return {}


for line in sys.stdin:
    request = json.loads(line)
    answer = {"create": create, "texts": texts, "change": change}[request["do"]](request)
    print(json.dumps(answer), flush=True)
