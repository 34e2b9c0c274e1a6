"""A tray of the test's own: it takes in the program's item over the session bus and opens its menu there."""

from gi.repository import Gio, GLib

from bus_service import BusService
from session import wait_for

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"

INTERFACE = f"""
<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
</interface></node>"""


class Tray(BusService):
    """Items are kept while their owner stays on the bus."""

    def __init__(self, session):
        self._items = []
        super().__init__(session, WATCHER, "/StatusNotifierWatcher", INTERFACE)

    def _listen(self):
        self._bus.signal_subscribe("org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged", None, None,
                                   Gio.DBusSignalFlags.NONE, self._owner_changed)

    def _called(self, _bus, sender, _path, _interface, method, arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            self._items.append(sender)
        invocation.return_value(None)

    def _read(self, _bus, _sender, _path, _interface, name):
        return {"IsStatusNotifierHostRegistered": GLib.Variant("b", True),
                "ProtocolVersion": GLib.Variant("i", 0),
                "RegisteredStatusNotifierItems": GLib.Variant("as", self._items)}[name]

    def _owner_changed(self, _bus, _sender, _path, _interface, _signal, arguments):
        name, _, owner = arguments.unpack()
        if not owner:
            self._items = [item for item in self._items if item != name]

    def items(self):
        """The bus names of the items that are there now."""
        return list(self._items)

    def wait_for_items(self, count):
        return wait_for(lambda: len(self.items()) == count and (self._items or True), what=f"{count} tray items")

    def _call(self, path, interface, method, arguments):
        return self._bus.call_sync(self._items[0], path, interface, method, arguments, None,
                                   Gio.DBusCallFlags.NONE, 5000, None).unpack()

    def _property(self, name):
        return self._call("/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                          GLib.Variant("(ss)", (ITEM, name)))[0]

    def icon(self):
        """The picture's bytes, of every size that is offered."""
        return self._property("IconPixmap")

    def title(self):
        """What the host calls the item."""
        return self._property("Title")

    def activate(self, x, y):
        """A left click on the item, at this place on the screen."""
        self._call("/StatusNotifierItem", ITEM, "Activate", GLib.Variant("(ii)", (x, y)))

    def open_menu(self):
        """Opens it as a host does, and answers its entries: title -> (id, properties)."""
        path = self._property("Menu")
        self._call(path, MENU, "AboutToShow", GLib.Variant("(i)", (0,)))
        layout = self._call(path, MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))[1]
        return {entry[1].get("label", "---"): (entry[0], entry[1]) for entry in layout[2]}

    def choose(self, title):
        """Opens the menu and chooses an entry in it."""
        number = self.open_menu()[title][0]
        self._call(self._property("Menu"), MENU, "Event",
                   GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("i", 0), 0)))
