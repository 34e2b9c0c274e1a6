"""What stands in for a service of the desktop on the session bus."""

import threading

from gi.repository import Gio, GLib


class BusService:
    """Stands from its making to `close`, and answers from a thread of its own, as programs wait for it."""

    def __init__(self, session, name, path, interface):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self._bus = Gio.DBusConnection.new_for_address_sync(
            session.env["DBUS_SESSION_BUS_ADDRESS"], flags, None, None)
        self._bus.register_object(path, Gio.DBusNodeInfo.new_for_xml(interface).interfaces[0],
                                  self._called, self._read, None)
        self._listen()
        Gio.bus_own_name_on_connection(self._bus, name, Gio.BusNameOwnerFlags.NONE, None, None)
        self._loop = GLib.MainLoop()
        self._thread = threading.Thread(target=self._loop.run, daemon=True)
        self._thread.start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self._loop.quit()
        self._thread.join()
        self._bus.close_sync(None)

    def _listen(self):
        """To the signals of others."""

    def _called(self, _bus, _sender, _path, _interface, _method, _arguments, _invocation):
        raise NotImplementedError

    def _read(self, _bus, _sender, _path, _interface, _property):
        raise NotImplementedError
