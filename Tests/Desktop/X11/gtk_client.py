"""A GTK program's clipboard: `copy TYPE FILE` offers the file's text, picture or list of files until it is
stopped, `paste TYPE` writes what there is to standard output. Under Wayland it has a window, and waits for
the keyboard: the clipboard is there for nobody else."""
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GdkPixbuf, Gtk  # noqa: E402

if "Wayland" in type(Gdk.Display.get_default()).__name__:
    window = Gtk.Window()
    window.show_all()
    while not window.is_active():
        Gtk.main_iteration()

clipboard = Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD)
action, kind = sys.argv[1:3]
if action == "copy":
    if kind == "text/plain":
        with open(sys.argv[3], encoding="utf-8", newline="") as file:
            clipboard.set_text(file.read(), -1)
    else:
        clipboard.set_image(GdkPixbuf.Pixbuf.new_from_file(sys.argv[3]))
    Gtk.main()
elif kind == "text/plain":
    sys.stdout.buffer.write((clipboard.wait_for_text() or "").encode())
else:
    contents = clipboard.wait_for_contents(Gdk.Atom.intern(kind, False))
    sys.stdout.buffer.write(contents.get_data() if contents else b"")
