#!/usr/bin/env python3
"""Writes the metric files of the reports' fonts into resources/Fonts.

The widths are those of the Debian package fonts-urw-base35, whose fonts are as wide as the standard ones. A
file holds only what the tool reads: the width of each byte of Windows-1252, or of the font's own characters
for the two symbol fonts, and the place of the underline.
"""

import pathlib
import sys

SOURCE = pathlib.Path("/usr/share/fonts/type1/urw-base35")
TARGET = pathlib.Path(__file__).resolve().parent.parent / "resources" / "Fonts"

FONTS = {
    "Courier": "NimbusMonoPS-Regular",
    "Courier-Bold": "NimbusMonoPS-Bold",
    "Courier-Oblique": "NimbusMonoPS-Italic",
    "Courier-BoldOblique": "NimbusMonoPS-BoldItalic",
    "Helvetica": "NimbusSans-Regular",
    "Helvetica-Bold": "NimbusSans-Bold",
    "Helvetica-Oblique": "NimbusSans-Italic",
    "Helvetica-BoldOblique": "NimbusSans-BoldItalic",
    "Times-Roman": "NimbusRoman-Regular",
    "Times-Bold": "NimbusRoman-Bold",
    "TimesItalic": "NimbusRoman-Italic",
    "Times-BoldItalic": "NimbusRoman-BoldItalic",
    "TimesRoman": "NimbusRoman-Regular",
    "Symbol": "StandardSymbolsPS",
    "ZapfDingbats": "D050000L",
}
SYMBOLS = ("Symbol", "ZapfDingbats")

# Bytes 0x80 to 0xFF. Those without a character show a bullet.
UPPER = """
Euro bullet quotesinglbase florin quotedblbase ellipsis dagger daggerdbl circumflex perthousand Scaron
guilsinglleft OE bullet Zcaron bullet bullet quoteleft quoteright quotedblleft quotedblright bullet endash
emdash tilde trademark scaron guilsinglright oe bullet zcaron Ydieresis space exclamdown cent sterling currency
yen brokenbar section dieresis copyright ordfeminine guillemotleft logicalnot hyphen registered macron degree
plusminus twosuperior threesuperior acute mu paragraph periodcentered cedilla onesuperior ordmasculine
guillemotright onequarter onehalf threequarters questiondown Agrave Aacute Acircumflex Atilde Adieresis Aring
AE Ccedilla Egrave Eacute Ecircumflex Edieresis Igrave Iacute Icircumflex Idieresis Eth Ntilde Ograve Oacute
Ocircumflex Otilde Odieresis multiply Oslash Ugrave Uacute Ucircumflex Udieresis Yacute Thorn germandbls agrave
aacute acircumflex atilde adieresis aring ae ccedilla egrave eacute ecircumflex edieresis igrave iacute
icircumflex idieresis eth ntilde ograve oacute ocircumflex otilde odieresis divide oslash ugrave uacute
ucircumflex udieresis yacute thorn ydieresis
""".split()
# Bytes below that are not what the fonts' own encoding has there.
LOWER = {39: "quotesingle", 96: "grave", 127: "bullet"}


def read(path):
    """The font's underline, the widths by its own codes, and those by name."""
    underline, codes, names = [], {}, {}
    for line in path.read_text(encoding="latin-1").splitlines():
        if line.startswith("Underline"):
            underline.append(line)
        if line.startswith("C "):
            fields = dict(part.split(maxsplit=1) for part in line.split(";") if len(part.split()) >= 2)
            width = int(float(fields["WX"]))
            names[fields["N"].strip()] = width
            if int(fields["C"]) > 0:
                codes[int(fields["C"])] = width
    return underline, codes, names


def windows_widths(codes, names):
    widths = {code: codes[code] for code in range(32, 127)}
    widths.update({code: names[name] for code, name in LOWER.items()})
    widths.update({128 + i: names[name] for i, name in enumerate(UPPER)})
    return widths


def write(name, underline, widths):
    lines = ["StartFontMetrics 4.1", f"FontName {name}", *underline, f"StartCharMetrics {len(widths)}"]
    lines += [f"C {code} ; WX {width} ;" for code, width in sorted(widths.items())]
    lines += ["EndCharMetrics", "EndFontMetrics", ""]
    (TARGET / f"{name}.afm").write_text("\n".join(lines), encoding="ascii")


def main():
    if len(UPPER) != 128:
        sys.exit(f"{len(UPPER)} names for 128 bytes")
    TARGET.mkdir(parents=True, exist_ok=True)
    for name, source in FONTS.items():
        underline, codes, names = read(SOURCE / f"{source}.afm")
        write(name, underline, codes if name in SYMBOLS else windows_widths(codes, names))


if __name__ == "__main__":
    main()
