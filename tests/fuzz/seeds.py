#!/usr/bin/env python3
"""Writes the seeds of the fuzz targets to corpus/: what the sounder and the operator say on a good day, and
on some bad ones. Inputs that once led to a failure stand beside them under names of their own.

    tests/fuzz/seeds.py
"""
import pathlib
import sys

CORPUS = pathlib.Path(__file__).parent / "corpus"

KEYS = ["Velocity", "Ping", "Depth", "format", "mode", "baud"] + [
    channel + name
    for channel in ("high", "low")
    for name in ("SounderMode", "Blank", "Draft", "Index", "Gain", "Pulse", "Detect", "Freq", "TVG")
]

REPLY = [
    b"*i5,v1500000,s30000,a3,I9600,Hon,Lon",
    b"*Hca,Hg064,Hm00450,Ho00400,Hp16,Hq00000,Ht50,Hw0200,HlT",
    b"*Lcm,Lg050,Lm00650,Lo00400,Lp16,Lq00000,Lt50,Lw0033,LlW",
]

DEPTHS = {
    "odom": b" et B 01234 05678",
    "odom-cut": b" et B 01",
    "nmea-dbt": b"$SDDBT,40.4,f,12.31,M,6.7,F*3C",
    "nmea-dbs": b"$SDDBS,,f,,M,,F*00",
    "orvando": b"B 01234 ,05678",
    "deso": b"DA00012.31 m\nDB00045.60 m",
    "kestrola": b"00131T-94L\t00123T-95H",
    "kestrola-high": b"00131T-95H",
    "single-low": b"e01234",
    "sonarmite": b"1 12.31 45.6 90 1.2",
    "huge": b"DA9e38DB9e39",
    "negative": b" et B -1234 -0001",
    "noise": bytes(range(128, 160)),
}


def receive(*pieces):
    """Pieces as (text, what is asked for afterwards)."""
    return b"".join(bytes([len(text), wish]) + text for text, wish in pieces)


def change(*changes):
    return b"".join(bytes([KEYS.index(key), len(value)]) + value.encode() for key, value in changes)


def seeds():
    yield "receivebuffer", "pair", receive((b"TalVero New\r\n", 0b100100), (b"OK\r\nERR\r\n", 0b100100))
    yield "receivebuffer", "pair-in-two", receive((b"OK\r", 0), (b"\nOK\r\n", 0b111000))
    yield "receivebuffer", "single-ends", receive((b"a\rb\nc\r\n", 0b100100), (b"\n\n\rx", 0b100100))
    yield "receivebuffer", "cleared", receive((b"half a li", 3), (b"ne\r\n", 255), (b"\r\n", 36))

    banners = (b"TalVero New Dual 2.14.7", b"Talvero HF 1.0.12", b"New LF 12.3.45", b"New 999")
    yield "lines", "banners", b"\x01" + b"\n".join(banners)
    yield "lines", "answers", b"\x01" + b"\n".join((b"OK", b"ERR", b"New", b"OK", b"ERR OK", b""))
    yield "lines", "status", b"\x21New\nBoardTemp: 298.15\nVSupply: 12.41\nBoardTemp: 1e38\nVSupply: -9e999"
    yield "lines", "identifier", b"\x01New\nUID : 4A5B6C7D8E9F0011\nUID : "
    yield "lines", "reply", b"\x01" + b"\n".join(REPLY)

    for number, (name, text) in enumerate(DEPTHS.items()):
        yield "depthsentence", name, bytes([0b00011, number]) + text
        yield "depthsentence", name + "-in-feet-low-alone", bytes([0b10110, number]) + text

    yield "settingsreply", "as-it-comes", b"\n".join(REPLY)
    yield "settingsreply", "numbers-beyond-all", b"*iv99999999999,s-2147483648,a9,I0,i2147483647"
    yield "settingsreply", "empty-pieces", b"*H,,Hg,H,Hm,\n*L\n*i"
    yield "settingsreply", "told-sounder", b"?*v400000.*i10....*o12345.H*g100...L*csxxxxxL*I333...*a9....."

    report = ["version: 1", "detect: 40 50", "pulse: 16 12", "x: 1", "range: 40000", "x: 1", "x: 1",
              "gain: 60 70", "velocity: 1480", "draft: 0.5 0.6", "index: 0.1 0.2", "mode: n a",
              "pings: 5", "tvg: N W", "baud: 9600", "format: 3"]
    middle = bytes([128, 129])
    yield "settingsreport", "whole", middle + "\n".join(report).encode()
    yield "settingsreport", "cut", middle + "\n".join(report[:8]).encode()[:-3]
    yield "settingsreport", "numbers-beyond-all", middle + b"x: -2147483648 2147483647\n" * 16
    yield "settingsreport", "no-values", middle + b"\n:\n: \n:  :\n\n"

    yield "commands", "words", change(("format", "KESTROLA"), ("baud", "115200"), ("highSounderMode", "Manual"),
                                      ("lowTVG", "Log 20"), ("mode", "Active"), ("format", "none"))
    yield "commands", "lengths", change(("highDraft", "0.45"), ("lowIndex", "99.999"), ("highBlank", "0.3"),
                                        ("lowBlank", "0.5"), ("Depth", "100"), ("highDraft", "100"))
    yield "commands", "numbers", change(("Velocity", "1482.7"), ("Ping", "10"), ("highGain", "65"),
                                        ("lowPulse", "100"), ("lowFreq", "33.3"), ("highDetect", "1"))
    yield "commands", "no-numbers", change(("Velocity", "nan"), ("Ping", "1e9"), ("Depth", "-inf"), ("lowGain", ""))

    yield "commandreader", "requests", b"\x00*nasdfd\r\n*n1234567*Gasdfdsasdf*UUasdfdsa*UAbxxxxxx*UAsxxxxxx"
    yield "commandreader", "settings", b"\x07*o00500H*m00450L*g064...H*v500000*s030000*a3......*I000....*F345678"
    yield "commandreader", "cut-off", b"\x25*o00*o005*o00500Hrest*bHHHHHHH*hLLLLLLL*R345678**"

    yield "canary", "forbidden-word", b"fail"


def main():
    if len(sys.argv) > 1:
        print(__doc__)
        return
    for target, name, content in seeds():
        folder = CORPUS / target
        folder.mkdir(parents=True, exist_ok=True)
        (folder / name).write_bytes(content)


main()
