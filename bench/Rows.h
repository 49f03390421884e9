#pragma once

/// The measurements, a file each. Every one prints its lines of the table and
/// returns false, with a sentence on standard error, when it could not measure
/// or when work and reference do not come to the same result.

/// From exec to the first drawn frame of the wizard, and the peak memory at
/// that moment, beside a program that opens a bare window.
bool MeasureStartUp();
/// Full redraws of the wizard's pages, beside the same pixels drawn by hand.
bool MeasurePages();
/// The installation into 14 hosts, beside a shell script of the same tools.
bool MeasureInstallation();
/// Building and destroying panels: ten times as many, how much longer.
bool MeasureWidgets();
/// A pointer movement over a window: ten times as many children, how much longer.
bool MeasurePointer();
/// Filling the colour square, beside the plain formula for each pixel.
bool MeasureColorSquare();
/// A drag step in the colour dialog, beside blitting the same frames.
bool MeasureColorDrag();
/// FindFile, beside find.
bool MeasureFindFile();
/// MappedFile, beside a plain mapping.
bool MeasureMappedFile();
/// The profiler, beside the clock that it reads.
bool MeasureProfiler();
