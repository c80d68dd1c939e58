"""Charts from tables in one call, for tables of the kinds that Python programs have."""

import csv
import io
import math
import os
import warnings

from . import _orvane


def chart(kind, table, **options):
    """Makes a chart of `kind` from `table`: the live chart of the object model, ready to be saved or
    changed.

    kind: one of `orvane.chart_kinds`, such as "column".
    table: a pandas or polars data frame, a dict of columns, a list of rows (the header first) or of
        dicts, a numpy array with field names, or the path of a CSV file. The first column of most
        kinds holds the category labels; an index that a data frame has is its first column.
    options: those of the command line by the same names, with _ for -: title="Rain", grouped=True.

    Raises ValueError that says what is wrong, where, and what is allowed.
    """
    texts = []
    surface = None
    for name, value in options.items():
        if name == "surface":
            surface = _table_text(value, "surface")
        elif value is not None and value is not False:
            texts.append((name.replace("_", "-"), _option_text(value)))
    made, remarks = _orvane.make_chart(
        kind.replace("_", "-"), _table_text(table, "table"), texts, surface
    )
    for remark in remarks:
        warnings.warn(remark, stacklevel=2)
    return made


def _option_text(value):
    if value is True:
        return ""
    if isinstance(value, (list, tuple)):
        return ",".join(map(str, value))
    return str(value)


def _table_text(table, name):
    """What messages call a table, and its CSV; None for a file, which is read as it is."""
    if isinstance(table, (str, os.PathLike)):
        return os.fsdecode(table), None
    text = io.StringIO()
    writer = csv.writer(text, lineterminator="\n")
    for row in _rows(table):
        writer.writerow([_cell(value) for value in row])
    return name, text.getvalue()


def _rows(table):
    """The header of a table, then its rows."""
    if hasattr(table, "itertuples"):  # pandas
        if table.index.name is not None or not _counts_from_0(table.index):
            table = table.reset_index()
        yield table.columns
        yield from table.itertuples(index=False, name=None)
    elif hasattr(table, "iter_rows"):  # polars
        yield table.columns
        yield from table.iter_rows()
    elif hasattr(table, "keys"):
        yield table.keys()
        yield from zip(*table.values(), strict=True)
    elif getattr(getattr(table, "dtype", None), "names", None):  # numpy, with field names
        yield table.dtype.names
        yield from table.tolist()
    elif hasattr(table, "__iter__"):
        rows = list(table)
        if rows and hasattr(rows[0], "keys"):
            names = list(dict.fromkeys(name for row in rows for name in row))
            yield names
            yield from ([row.get(name) for name in names] for row in rows)
        else:
            yield from rows
    else:
        raise TypeError(f"a table is a data frame, columns, rows or a path, not {type(table)}")


def _counts_from_0(index):
    return len(index) == 0 or (index[0] == 0 and index[-1] == len(index) - 1)


def _cell(value):
    if hasattr(value, "item"):  # A number of numpy.
        value = value.item()
    # What is not equal to itself is not there: NaN, and what data frames have for no date.
    if value is None or value != value:
        return ""
    if isinstance(value, float) and math.isinf(value):
        raise ValueError(f"{value} is no number that a chart can show")
    # As people write numbers: a column with gaps has whole numbers as floats.
    return int(value) if isinstance(value, float) and value.is_integer() else value


def _function_of(kind):
    def make(table, **options):
        return chart(kind.name, table, **options)

    make.__name__ = make.__qualname__ = kind.name.replace("-", "_")
    lines = [kind.help + ". The table has " + kind.table + ".", ""]
    for option in kind.options:
        values = f" ({option.values})" if option.values else ""
        lines.append(f"{option.name.replace('-', '_')}: {option.help}{values}")
    make.__doc__ = "\n".join(lines)
    return make


chart_kinds = [kind.name for kind in _orvane.chart_kinds()]
"""The names of all kinds of chart that tables become."""

functions = {}
for _kind in _orvane.chart_kinds():
    _function = _function_of(_kind)
    functions[_function.__name__] = _function
