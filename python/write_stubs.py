"""Writes the type stubs of the package `orvane` from the type tables: write_stubs.py OUT.pyi"""

import sys

import orvane
from orvane import _classes, _orvane

HEADER = '''\
"""Type stubs, written from the type tables of the object model."""

from collections.abc import Callable, Iterable, Iterator
from enum import IntEnum
from os import PathLike
from pathlib import Path
from typing import Any, Generic, TypeVar, overload

import orvane  # Within a class, its members hide classes of the same name.

_Read = TypeVar("_Read", covariant=True)
_Let = TypeVar("_Let", contravariant=True)
_Entry = TypeVar("_Entry")

__all__: list[str]

__version__: str
chart_kinds: list[str]

def WriteProtos(folder: str | PathLike[str]) -> None: ...

class AutomationError(Exception):
    number: int
    message: str
    source: str

class UnknownMember(AutomationError, AttributeError): ...

class Object: ...

class Event:
    """An event of an object."""

    def Subscribe(self, handler: Callable[..., object], /) -> int: ...
    def Unsubscribe(self, subscription: int, /) -> None: ...

class _Property(Generic[_Read, _Let]):
    """A property that takes more types than it gives."""

    @overload
    def __get__(self, instance: None, owner: type) -> property: ...
    @overload
    def __get__(self, instance: Object, owner: type) -> _Read: ...
    def __set__(self, instance: Object, value: _Let) -> None: ...

class _Item(Generic[_Entry]):
    """A property with an index that counts from 1."""

    def __call__(self, Index: int, /) -> _Entry: ...
    def __getitem__(self, Index: int) -> _Entry: ...

class _LetItem(_Item[_Entry]):
    def __setitem__(self, Index: int, value: _Entry) -> None: ...
'''

BASIC = {
    "": "None",
    "Boolean": "bool",
    "Int16": "int",
    "Int32": "int",
    "Color": "int",
    "Single": "float",
    "Double": "float",
    "String": "str",
    "Numbers": "tuple[float, ...]",
}
LET = {"Numbers": "Iterable[Any]", "Color": "int | str"}

# A class that no table describes may be any of several.
TABLES = {table.name: table for table in _orvane.types()}


def read_type(type, several="Any"):
    """What a property or a call gives."""
    if type.name in BASIC:
        return BASIC[type.name]
    is_known = type.enumeration is not None or type.name in TABLES
    return f"orvane.{type.name}" if is_known else several


def let_type(type):
    """What a property or a parameter takes."""
    given = read_type(type, "Object | None")
    return f"{given} | int | str" if type.enumeration is not None else LET.get(type.name, given)


def documented(text):
    lines = text.replace("\\", "\\\\").splitlines()
    if len(lines) == 1:
        return [f'        """{lines[0]}"""']
    return [f'        """{lines[0]}', *(f"        {line}".rstrip() for line in lines[1:]), '        """']


def method(member, text):
    parameters = ["self"]
    for each in member.parameters:
        if each.is_out:
            continue
        default = f" = {each.fallback!r}" if each.is_optional else ""
        parameters.append(f"{each.name}: {let_type(each.type)}{default}")
    return [
        f"    def {member.name}({', '.join(parameters)}, /) -> {read_type(member.type)}:",
        *documented(text),
        "        ...",
    ]


def attribute(name, type, text):
    return [f"    {name}: {type}", *(line[4:] for line in documented(text))]


def property_(member, text):
    given, taken = read_type(member.type), let_type(member.type)
    if member.parameters:
        return attribute(member.name, f"{'_LetItem' if member.is_let else '_Item'}[{given}]", text)
    entry = _classes.list_entry(member)
    if entry is not None:
        is_number = entry.name in ("Numbers", "Single")
        taken = f"Iterable[{'Any' if is_number else read_type(entry, 'Object')}]"
        return attribute(member.name, f"_Property[{given}, {taken}]", text)
    if member.is_let and given != taken:
        return attribute(member.name, f"_Property[{given}, {taken}]", text)
    lines = ["    @property", f"    def {member.name}(self) -> {given}:", *documented(text), "        ..."]
    if member.is_let:
        lines += [
            f"    @{member.name}.setter",
            f"    def {member.name}(self, value: {taken}, /) -> None: ...",
        ]
    return lines


def class_(table):
    made = getattr(orvane, table.name)
    lines = ["", f"class {table.name}(Object):", f'    """{table.text}"""', ""]
    for member in table.members:
        text = getattr(made, member.name).__doc__
        lines += (method if member.is_method else property_)(member, text)
    if hasattr(made, "save"):
        lines += ["    def save(self, path: str | PathLike[str]) -> None:", *documented(made.save.__doc__)]
    for event in table.events:
        lines += ["    @property", f"    def {event.name}(self) -> Event:"]
        lines += [*documented(getattr(made, event.name).__doc__), "        ..."]
    if table.entry is not None:
        lines += [
            "    def __len__(self) -> int: ...",
            f"    def __iter__(self) -> Iterator[{read_type(table.entry)}]: ...",
        ]
    return lines


def enumeration(values):
    return ["", f"class {values.__name__}(IntEnum):", *(f"    {v.name} = {v.value}" for v in values)]


def charts():
    """The calls that make charts of tables."""
    lines = ["", "def chart(kind: str, table: Any, **options: Any) -> Any: ..."]
    for kind in _orvane.chart_kinds():
        options = [
            f"{option.name.replace('-', '_')}: {'Any' if option.values else 'bool'} = ..."
            for option in kind.options
        ]
        name = kind.name.replace("-", "_")
        lines.append(f"def {name}(table: Any, *, {', '.join(options)}) -> {kind.graph}: ...")
    return lines


def main(path):
    lines = [HEADER.rstrip(), *charts()]
    for table in TABLES.values():
        lines += class_(table)
    for values in _classes._enumerations.values():
        lines += enumeration(values)
    with open(path, "w", encoding="utf-8") as file:
        file.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main(sys.argv[1])
