"""Does with Python, numpy and pandas what log_files does: decodes the logs' bytes, writes the tables as .csv, reads
them with their dates. Prints a line a step, its name and milliseconds, and one with the sum of each table."""

import csv
import datetime
import pathlib
import struct
import sys
import time

import numpy
import pandas

RECORD = struct.Struct("<6B H B B H h H")
DAY = datetime.timedelta(days=1)
BASE = datetime.datetime(1899, 12, 30)
RECORD_TYPE = numpy.dtype(
    [(name, "u1") for name in ("year", "day", "month", "second", "minute", "hour")]
    + [("amps", "<u2"), ("low", "u1"), ("high", "u1"), ("volts", "<u2"), ("most", "<i2"), ("watts", "<u2")]
)
SAMPLE_BYTES = 20
TEN_SECONDS = 10 / 86400


def best(work, runs):
    shortest, result = float("inf"), None
    for _ in range(runs):
        start = time.perf_counter()
        result = work()
        shortest = min(shortest, time.perf_counter() - start)
    return result, shortest * 1000


def bcd(byte):
    return byte // 16 * 10 + byte % 16


def serial(moment):
    return (moment - BASE) / DAY


def history_struct(frame, offset):
    """Rows of year to second in local time and six values, as the tool has them."""
    away = datetime.timedelta(days=offset)
    rows = []
    for record in RECORD.iter_unpack(frame[23:]):
        year, day, month, second, minute, hour, amps, low, high, volts, most, watts = record
        if year == 255 and amps == 65535 and watts == 65535:
            continue
        moment = datetime.datetime(2000 + bcd(year), bcd(month), bcd(day), bcd(hour), bcd(minute), bcd(second)) - away
        rows.append(
            [moment.year % 100, moment.day, moment.month, moment.hour, moment.minute, moment.second]
            + [round(watts * 4294967296 / 36000 / 16777216 * 1024, 2), most * 4.0]
            + [round(volts * 512 / 36000, 2), float(high), float(low), round(amps / 256, 3)]
        )
    moments = [datetime.datetime(2000 + row[0], row[2], row[1], row[3], row[4], row[5]) for row in rows]
    for row, start, end in zip(rows, moments, moments[1:]):
        seconds = (end - start).total_seconds() - 0.4
        if 0 < seconds < 1800:
            row[6] = round(row[6] * 1800 / seconds, 2)
            row[8] = round(row[8] * 1800 / seconds, 2)
    return rows


def history_numpy(frame, offset):
    data = numpy.frombuffer(frame, RECORD_TYPE, offset=23)
    data = data[~((data["year"] == 255) & (data["amps"] == 65535) & (data["watts"] == 65535))]
    part = lambda name: bcd(data[name].astype("i8"))
    months = (part("year") + 30) * 12 + part("month") - 1
    moments = (
        months.astype("M8[M]").astype("M8[s]")
        + ((part("day") - 1) * 86400 + part("hour") * 3600 + part("minute") * 60 + part("second")).astype("m8[s]")
        - numpy.timedelta64(round(offset * 86400), "s")
    )
    table = numpy.empty((len(data), 12))
    days, ms = moments.astype("M8[D]"), moments.astype("M8[M]")
    inside = (moments - days).astype("i8")
    table[:, 0] = (ms.astype("M8[Y]").astype("i8") + 1970) % 100
    table[:, 1] = (days - ms).astype("i8") + 1
    table[:, 2] = ms.astype("i8") % 12 + 1
    table[:, 3], table[:, 4], table[:, 5] = inside // 3600, inside // 60 % 60, inside % 60
    ratio = numpy.ones(len(data))
    seconds = numpy.diff(moments).astype("i8") - 0.4
    short = (seconds > 0) & (seconds < 1800)
    ratio[:-1][short] = 1800 / seconds[short]
    table[:, 6] = numpy.round(ratio * numpy.round(data["watts"] * (256 * 1024 / 36000), 2), 2)
    table[:, 7] = data["most"] * 4.0
    table[:, 8] = numpy.round(ratio * numpy.round(data["volts"] * (512 / 36000), 2), 2)
    table[:, 9], table[:, 10] = data["high"], data["low"]
    table[:, 11] = numpy.round(data["amps"] / 256, 3)
    return table


def mark_serial(mark, offset):
    hour, minute, second, month, day, year = (int(f"{byte:02x}") for byte in mark[3:9])
    return serial(datetime.datetime(2000 + year, month, day, hour, minute, second)) - offset


def ones(value, sign):
    """One's complement, of which the highest bit is worth `sign`."""
    return value if value < sign else value - 2 * sign + 1


def chart_struct(stream, offset):
    sample = struct.Struct(">3H BH BH B x 2B I")
    rows, moment, place = [], 0.0, 0
    while place + 9 <= len(stream):
        three = stream[place : place + 3]
        if three in (b"\xff\xff\xff", b"END"):
            break
        if three in (b"STR", b"CDF", b"PWR"):
            moment = mark_serial(stream[place : place + 9], offset)
            place += 9
            continue
        block = stream[place : place + SAMPLE_BYTES]
        if b"\xff\xff\xff" in block:
            break
        volts, amps, watts, ng_high, ng, hz_high, hz, factor, whole, crest, energy = sample.unpack(block)
        moment += TEN_SECONDS
        rows.append(
            [moment, round(volts / 128, 2), round(amps / 256, 3), round(ones(watts, 32768) * 4.0, 2)]
            + [round((ng_high * 65536 + ng) / 256, 3), round((hz_high * 65536 + hz) * 8000 / 16777216, 2)]
            + [round(ones(factor, 128) / 128, 3), bcd(whole) + round(ones(crest, 128) / 256, 3)]
            + [round(energy * 232 / 16777216, 4)]
        )
        place += SAMPLE_BYTES
    return rows


def chart_numpy(stream, offset):
    """Mark by mark; between two of them all samples at once."""
    parts, place, end = [], 0, stream.find(b"\xff\xff\xff")
    # A sample may hold the three bytes of a mark or of the end: only those at a block's start count.
    while place < end:
        moment = mark_serial(stream[place : place + 9], offset)
        place += 9
        after = [stream.find(mark, place) for mark in (b"STR", b"CDF", b"PWR")]
        stop = min([found for found in after if found >= 0] + [end])
        count = (stop - place) // SAMPLE_BYTES
        raw = numpy.frombuffer(stream, "u1", count * SAMPLE_BYTES, place).reshape(count, SAMPLE_BYTES).astype("i8")
        join = lambda first, size: sum(raw[:, first + i] << 8 * (size - 1 - i) for i in range(size))
        signed = lambda value, sign: numpy.where(value < sign, value, value - 2 * sign + 1)
        table = numpy.empty((count, 9))
        table[:, 0] = moment + TEN_SECONDS * numpy.arange(1, count + 1)
        table[:, 1] = numpy.round(join(0, 2) / 128, 2)
        table[:, 2] = numpy.round(join(2, 2) / 256, 3)
        table[:, 3] = signed(join(4, 2), 32768) * 4.0
        table[:, 4] = numpy.round(join(6, 3) / 256, 3)
        table[:, 5] = numpy.round(join(9, 3) * (8000 / 16777216), 2)
        table[:, 6] = numpy.round(signed(raw[:, 12], 128) / 128, 3)
        table[:, 7] = bcd(raw[:, 14]) + numpy.round(signed(raw[:, 15], 128) / 256, 3)
        table[:, 8] = numpy.round(join(16, 4) * (232 / 16777216), 4)
        parts.append(table)
        place += count * SAMPLE_BYTES
    return numpy.concatenate(parts)


def write_with_csv(path, rows):
    with open(path, "w", newline="", encoding="cp1252") as file:
        csv.writer(file).writerows(rows)


def history_lines(rows):
    """What the file tells: date, end, start, values."""
    ends = rows[1:] + rows[-1:]
    for row, end in zip(rows, ends):
        yield [
            f"{row[2]:02d}/{row[1]:02d}/{row[0]:02d}",
            f"{end[3]:02d}:{end[4]:02d}:{end[5]:02d}",
            f"{row[3]:02d}:{row[4]:02d}:{row[5]:02d}",
            *row[6:],
        ]


def chart_lines(rows):
    for row in rows:
        moment = BASE + datetime.timedelta(seconds=round(row[0] * 86400))
        yield [moment.strftime("%m/%d/%Y"), moment.strftime("%H:%M:%S"), *row[1:]]


def main(folder, offset):
    folder = pathlib.Path(folder)
    told = lambda name, milliseconds: print(name, milliseconds, flush=True)
    for log, columns, runs, struct_rows, numpy_rows, lines in (
        ("history", 12, 5, history_struct, history_numpy, history_lines),
        ("chart", 9, 5, chart_struct, chart_numpy, chart_lines),
    ):
        raw = (folder / f"{log}.bin").read_bytes()
        rows, struct_ms = best(lambda: struct_rows(raw, offset), runs)
        table, numpy_ms = best(lambda: numpy_rows(raw, offset), runs)
        told(f"{log}-struct", struct_ms)
        told(f"{log}-numpy", numpy_ms)
        told(f"{log}-struct-sum", sum(map(sum, rows)))
        told(f"{log}-numpy-sum", table.sum())
        told(f"{log}-csv", best(lambda: write_with_csv(folder / "peer.csv", lines(rows)), 3)[1])
        told(f"{log}-pandas", best(lambda: pandas.DataFrame(lines(rows)).to_csv(folder / "peer.csv", index=False), 3)[1])
        skipped, dates = (8, [[0, 1], [0, 2]]) if log == "history" else (8, [[0, 1]])
        read = lambda: pandas.read_csv(
            folder / f"{log}.csv",
            skiprows=skipped,
            header=None,
            encoding="cp1252",
            parse_dates=dates,
            infer_datetime_format=True,
        )
        frame, read_ms = best(read, 3)
        told(f"{log}-read", read_ms)
        told(f"{log}-read-rows", len(frame))


main(sys.argv[1], float(sys.argv[2]))
