"""One chart of every kind that the package has: every_chart.py FOLDER writes the worlds there, with
the PROTO files that they need."""

import math
import random
import sys
from pathlib import Path
from typing import Any

import orvane

MONTHS = ["January", "February", "March", "April", "May", "June"]
RAIN = {  # In Seattle, millimetres.
    "2012": [173.3, 92.3, 183.0, 68.1, 52.2, 75.1],
    "2013": [105.7, 40.3, 69.7, 149.6, 60.5, 33.1],
    "2014": [94.0, 155.2, 240.0, 106.1, 80.0, 18.8],
}
MOST = 250  # Millimetres at the top of the grid.
COLORS = [0xB27200, 0x009EE6, 0x739F00]  # Red in the low byte.


def rain_series(chart: Any) -> None:
    """A series for each year, a cell for each month."""
    chart.GridProps.XAxisCellCount = len(MONTHS)
    chart.GridProps.ZAxisCellCount = len(RAIN)
    chart.XAxisProps.Labels = MONTHS
    chart.ZAxisProps.Labels = list(RAIN)
    chart.YAxisProps.Max = MOST
    chart.YAxisProps.NumericFormat = '0 "mm"'
    chart.LegendProps.UseSeriesToggle = True
    scaler = orvane.OrvaneScaler()
    scaler.FromMax, scaler.ToMax = MOST, chart.GridProps.Height
    for number, (year, millimetres) in enumerate(RAIN.items(), start=1):
        series = chart.GetSeries(number)
        series.Height = [scaler.ScaledValue(value) for value in millimetres]
        series.Depth = 1.2
        series.LegendText = year
        series.Material.diffuseColor.Value = COLORS[number - 1]
        series.PopupProps.PopupText = [f"{value} mm" for value in millimetres]
        series.PopupProps.UsePopups = True


def rain_slices(chart: Any) -> None:
    """A slice for each year's share of the rain."""
    total = sum(sum(millimetres) for millimetres in RAIN.values())
    chart.SliceCount = len(RAIN)
    chart.radius = 6
    for number, (year, millimetres) in enumerate(RAIN.items(), start=1):
        slice = chart.GetSlice(number)
        slice.Percentage = sum(millimetres) / total
        slice.LegendText = slice.SliceTextProps.Text = year
        slice.Material.diffuseColor.Value = COLORS[number - 1]


def points_that_drift(chart: Any) -> None:
    """A cloud of points in two frames."""
    draw = random.Random(1)
    grid = chart.GridProps
    chart.PointFrameCount = 2
    for _ in range(60):
        x, y, z = (draw.uniform(0.1, 0.7) for _ in range(3))
        for frame, drift in (1, 0), (2, 0.2):
            chart.Get1PointFrame(frame).AddPoint(
                (x + drift) * grid.Width, (y + drift) * grid.Height, z * grid.Depth, 0.15, COLORS[1], 0
            )


def hill_or_cloud(chart: Any) -> None:
    """A surface with one top, or the density of a cloud of points about one place."""
    grid = chart.GridProps
    chart.SurfaceCount = 1
    surface = chart.GetSurface(1)
    surface.LegendText = "surface"
    surface.Material.diffuseColor.Value = 0xA779CC
    if hasattr(surface, "PointList"):
        draw = random.Random(1)
        surface.PointList.Items = [
            (draw.gauss(0.4, 0.15) * grid.Width, draw.gauss(0.6, 0.15) * grid.Depth) for _ in range(200)
        ]
        return
    if not hasattr(chart, "GetSeries"):
        grid.XAxisCellCount, grid.ZAxisCellCount = 16, 12
    columns, rows = grid.XAxisCellCount, grid.ZAxisCellCount
    for x in range(1, columns + 1):
        for z in range(1, rows + 1):
            height = 0.9 * grid.Height * math.sin(math.pi * x / (columns + 1)) * math.sin(math.pi * z / (rows + 1))
            surface.Set1HeightPoint(x, z, height, f"{height:.1f}")


# What a kind of chart is filled with goes by what it has; the combination charts have two of these.
FILL = {
    "GetSeries": rain_series,
    "GetSlice": rain_slices,
    "Get1PointFrame": points_that_drift,
    "GetSurface": hill_or_cloud,
}


def chart_axes(chart: Any) -> list[Any]:
    names = ["XAxisProps", "YAxisProps", "ZAxisProps"]
    return [getattr(chart, name) for name in names if hasattr(chart, name)]


def make(name: str) -> Any:
    chart = getattr(orvane, name)()
    chart.BackgroundProps.BackgroundColor = 0x3A2410
    chart.TitleProps.Text = name
    chart.TitleProps.TextFont = orvane.VRMLFontFamily.VRML_SANS
    chart.LegendProps.TextHeight = 0.4
    if hasattr(chart, "GridProps"):
        grid = chart.GridProps
        grid.Width, grid.Height, grid.Depth = 12, 6, 8
    for axis in chart_axes(chart):
        axis.LabelHeight = 0.4
    for member, fill in FILL.items():
        if hasattr(chart, member):
            fill(chart)
    for axis in chart_axes(chart):
        if hasattr(axis, "Max") and axis.Max == 0:
            axis.Max, axis.NumericFormat = 1, "0.00"
    light = chart.Lights.AddLightSource()
    light.location.X, light.location.Y, light.location.Z = 6, 20, 20
    light.intensity.Value, light.ambientIntensity.Value = 0.4, 0.4
    view = chart.Viewpoints.AddViewpoint()
    view.description.Value = "Corner"
    view.position.X, view.position.Y, view.position.Z = 17, 10, 22
    view.orientation.SetFromAngles(-0.35, 0.6, 0)
    return chart


def main(folder: Path) -> None:
    folder.mkdir(parents=True, exist_ok=True)
    orvane.WriteProtos(folder)
    for name in orvane.__all__:
        if not hasattr(getattr(orvane, name), "ExportToFile"):
            continue
        path = folder / f"{name}.wrl"
        if not make(name).ExportToFile(path):
            sys.exit(f"{path}: cannot be written")
        print(path)


if __name__ == "__main__":
    main(Path(sys.argv[1] if len(sys.argv) > 1 else "."))
