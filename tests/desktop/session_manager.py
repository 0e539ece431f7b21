"""A session manager of the old school (XSMP): what a program wants to happen at the next login."""

import select
from ctypes import (CDLL, CFUNCTYPE, POINTER, Structure, byref, c_char_p, c_int, c_ulong, c_void_p,
                    cast, create_string_buffer, string_at)

import wait

_ice, _sm = CDLL("libICE.so.6"), CDLL("libSM.so.6")
_ice.IceComposeNetworkIdList.restype = c_char_p
_ice.IceAcceptConnection.restype = c_void_p
_sm.SmsGenerateClientID.restype = c_void_p

_CALLBACKS = ("register_client", "interact_request", "interact_done", "save_yourself_request",
              "save_yourself_phase2_request", "save_yourself_done", "close_connection",
              "set_properties", "delete_properties", "get_properties")
_SAVE_LOCAL, _NO_INTERACTION = 1, 0
RESTART_NEVER = 3


class _Value(Structure):
    _fields_ = [("length", c_int), ("value", c_void_p)]


class _Property(Structure):
    _fields_ = [("name", c_char_p), ("type", c_char_p), ("count", c_int), ("values", POINTER(_Value))]


class _Callback(Structure):
    _fields_ = [("function", c_void_p), ("data", c_void_p)]


class _Callbacks(Structure):
    _fields_ = [(name, _Callback) for name in _CALLBACKS]


_Done = CFUNCTYPE(None, c_void_p, c_void_p, c_int)
_Registered = CFUNCTYPE(c_int, c_void_p, c_void_p, c_void_p)
_Properties = CFUNCTYPE(None, c_void_p, c_void_p, c_int, POINTER(POINTER(_Property)))
_NewClient = CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(_Callbacks), c_void_p)
_Trusts = CFUNCTYPE(c_int, c_char_p)


class SessionManager:
    """Asks every client to save itself as soon as it has registered. One for each process."""

    def __init__(self):
        self.properties = {}  # What clients told: the first byte of each first value.
        self.saved = False
        self._connections = {}
        self._kept = {"trusts": _Trusts(lambda _: 1), "new": _NewClient(self._meet),
                      "register_client": _Registered(self._register),
                      "save_yourself_done": _Done(self._done),
                      "set_properties": _Properties(self._learn)}
        self._nothing = _Done(lambda *_: None)
        error = create_string_buffer(256)
        if not _sm.SmsInitialize(b"test", b"1", self._kept["new"], None, self._kept["trusts"],
                                 len(error), error):
            raise RuntimeError(error.value.decode())
        count, listeners = c_int(), POINTER(c_void_p)()
        if not _ice.IceListenForConnections(byref(count), byref(listeners), len(error), error):
            raise RuntimeError(error.value.decode())
        self._listeners = [c_void_p(listeners[index]) for index in range(count.value)]
        for listener in self._listeners:
            _ice.IceSetHostBasedAuthProc(listener, self._kept["trusts"])
        self.address = _ice.IceComposeNetworkIdList(count, listeners).decode()

    def serve_until(self, condition, limit, what):
        wait.until(lambda: self._serve() or condition(), limit, what)

    def _serve(self):
        listening = {_ice.IceGetListenConnectionNumber(each): each for each in self._listeners}
        ready, _, _ = select.select([*listening, *self._connections], [], [], 0.05)
        for descriptor in ready:
            if descriptor in listening:
                connection = c_void_p(_ice.IceAcceptConnection(listening[descriptor],
                                                               byref(c_int())))
                if connection:
                    self._connections[_ice.IceConnectionNumber(connection)] = connection
            elif _ice.IceProcessMessages(self._connections[descriptor], None, None) != 0:
                del self._connections[descriptor]

    def _meet(self, _connection, _data, mask, callbacks, _reason):
        mask[0] = (1 << len(_CALLBACKS)) - 1
        for name in _CALLBACKS:
            function = cast(self._kept.get(name, self._nothing), c_void_p)
            setattr(callbacks[0], name, _Callback(function, None))
        return 1

    def _register(self, connection, _data, _previous):
        connection = c_void_p(connection)
        _sm.SmsRegisterClientReply(connection, c_void_p(_sm.SmsGenerateClientID(connection)))
        _sm.SmsSaveYourself(connection, _SAVE_LOCAL, 0, _NO_INTERACTION, 0)
        return 1

    def _learn(self, _connection, _data, count, properties):
        for index in range(count):
            told = properties[index][0]
            if told.count and told.values[0].length:
                self.properties[told.name.decode()] = string_at(told.values[0].value, 1)[0]

    def _done(self, connection, _data, _success):
        _sm.SmsSaveComplete(c_void_p(connection))
        self.saved = True
