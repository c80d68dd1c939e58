"""Python classes made from the type tables of the object model: none is written by hand."""

import enum
import inspect

from . import _orvane


class Object(_orvane.Object):
    """The base of all classes of the object model.

    Two objects are equal when they are the same object of the model. Members are found in any case.
    """

    __slots__ = ()

    def __getattr__(self, name):
        # What gets here is spelled in another case, is no member, or cannot be read.
        return _descriptor(self, name).__get__(self, type(self))

    def __setattr__(self, name, value):
        let = getattr(_descriptor(self, name), "fset", None)
        if let is None:
            self._let(self._id(name), (value,))  # Says why not.
        else:
            let(self, value)


class IndexedProperty:
    """A property with an index: `list.Item(1)` or `list.Item[1]`, and `list.Item[1] = value` where
    it can be set. Indexes count from 1."""

    __slots__ = ("_owner", "_id")
    __iter__ = None

    def __init__(self, owner, id):
        self._owner = owner
        self._id = id

    def __call__(self, *index):
        return self._owner._get(self._id, index)

    def __getitem__(self, index):
        return self._owner._get(self._id, (index,))

    def __setitem__(self, index, value):
        self._owner._let(self._id, (index, value))


class Event:
    """An event of an object: `chart.GridProps.XCellCountChanged.Subscribe(print)`."""

    __slots__ = ("_owner", "_name")

    def __init__(self, owner, name):
        self._owner = owner
        self._name = name

    def Subscribe(self, handler):
        """Has `handler` called with the event's arguments each time that it is raised, until
        Unsubscribe or the end of the object. What the handler raises ends the call that raised the
        event with an AutomationError. Returns what Unsubscribe takes."""
        return self._owner._subscribe(self._name, handler)

    def Unsubscribe(self, subscription):
        """Takes a handler out again: `subscription` is what Subscribe returned for it."""
        self._owner._unsubscribe(subscription)


def _descriptor(self, name):
    """What stands for the member or event called `name`, in any case, in the class of `self`."""
    event = type(self)._events.get(name.lower())
    return type(self)._members[self._id(name)] if event is None else event


def _reader(id, type):
    """The function that reads or calls member number `id`."""
    if type.enumeration is None:
        return lambda self, *arguments: self._get(id, arguments)
    values = {value.value: value for value in enumeration(type.enumeration)}

    def read(self, *arguments):
        number = self._get(id, arguments)
        return values.get(number, number)  # Some properties keep numbers that have no name.

    return read


_entry_types = {}
"""The type of the entries of each class of lists, by name."""

_initial_texts = {}
"""How the members of each class read at first, by the names of class and member."""


def list_entry(member):
    """The type of the entries of a property that holds a list; None for other members."""
    return None if member.is_method else _entry_types.get(member.type.name)


def _writer(id, member, read):
    """The function that sets a property; None for one that is only read."""
    if member.is_let:
        return lambda self, value: self._let(id, (value,))
    if list_entry(member) is None:
        return None

    def let(self, value):  # A list keeps its identity: what is set are its entries.
        if _orvane.is_row(value):
            _replace(read(self), value)
        else:
            self._let(id, (value,))

    return let


def _replace(entries, values):
    """Gives a list new entries, all or none."""
    if hasattr(type(entries), "Items"):
        entries.Items = values
        return
    values = list(values)  # First, since it may be made of the entries themselves.
    before = list(entries)
    entries.Clear()
    try:
        for value in values:
            entries.Append(value)
    except BaseException:
        entries.Clear()
        for value in before:
            entries.Append(value)
        raise


def _entries(self):
    for index in range(1, self.Count + 1):
        yield self.Item(index)


def _documentation(member, owner):
    help = member.help
    text = help.text + (f", in {help.unit}." if help.unit else ".")
    if member.type.name and not member.is_method:
        text = f"{member.type.name}: {text}"
    if help.range:
        text += f" Range: {help.range}."
    initial = _initial_texts.get(owner, {}).get(member.name)
    if initial:
        text += f" Initially: {initial}."
    if list_entry(member) is not None:
        text += " Setting it replaces the entries of the list."
    elif not member.is_method and not member.is_let:
        text += " Read-only."
    if member.is_method:
        lines = [
            f"{each.name}: {each.type.name}" + (f", {each.range}" if each.range else "")
            for each in member.parameters
            if not each.is_out
        ]
        if member.type.name:
            out = ", ".join(each.name for each in member.parameters if each.is_out)
            lines.append(f"Returns: {member.type.name}" + (f" ({out})" if out else ""))
        text = "\n".join([text, *([""] if lines else []), *lines])
    return text


def _method(id, member, owner):
    call = _reader(id, member.type)
    parameters = [inspect.Parameter("self", inspect.Parameter.POSITIONAL_ONLY)]
    for each in member.parameters:
        if each.is_out:
            continue
        default = each.fallback if each.is_optional else inspect.Parameter.empty
        parameters.append(
            inspect.Parameter(each.name, inspect.Parameter.POSITIONAL_ONLY, default=default)
        )
    call.__signature__ = inspect.Signature(parameters)
    call.__name__ = member.name
    call.__qualname__ = f"{owner}.{member.name}"
    call.__module__ = __package__
    call.__doc__ = _documentation(member, owner)
    return call


def _attribute(id, member, owner):
    """What stands for a member in its class."""
    if member.is_method:
        return _method(id, member, owner)
    if member.parameters:
        return property(lambda self: IndexedProperty(self, id), doc=_documentation(member, owner))
    read = _reader(id, member.type)
    return property(read, _writer(id, member, read), doc=_documentation(member, owner))


def _event(info):
    arguments = ", ".join(f"{each.name}: {each.type.name}" for each in info.parameters)
    return property(lambda self: Event(self, info.name), doc=f"Event ({arguments}): {info.text}.")


def _constructor(name):
    def __init__(self):
        made = _orvane.create(name)
        if made is None:
            raise TypeError(f"{name} objects are made by the objects that they belong to")
        _orvane.Object.__init__(self, made)

    return __init__


def make_class(table):
    """The class that a type table describes."""
    names = [member.name for member in table.members]
    members = [_attribute(id, member, table.name) for id, member in enumerate(table.members)]
    events = {event.name: _event(event) for event in table.events}
    namespace = {
        "__slots__": (),
        "__module__": __package__,
        "__doc__": table.text,
        "__init__": _constructor(table.name),
        "_members": members,
        "_events": {name.lower(): event for name, event in events.items()},
        **dict(zip(names, members)),
        **events,
    }
    if table.entry is not None:
        namespace |= {"__len__": lambda self: self.Count, "__iter__": _entries}
    return type(Object)(table.name, (Object,), namespace)


_enumerations = {}


def enumeration(info):
    """The IntEnum of an enumeration of the model."""
    if info.name not in _enumerations:
        _enumerations[info.name] = enum.IntEnum(info.name, info.enumerators, module=__package__)
    return _enumerations[info.name]


def make_all():
    """Every class and enumeration that the tables tell of, by name."""
    _orvane.make_classes_with(make_class)
    tables = _orvane.types()
    _entry_types.update((table.name, table.entry) for table in tables if table.entry is not None)
    _initial_texts.update(_orvane.initial_texts())
    classes = [_orvane.class_of(table) for table in tables]
    return {made.__name__: made for made in [*classes, *_enumerations.values()]}
