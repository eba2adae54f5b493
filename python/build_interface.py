"""The C interface for cffi, read from the header itself."""

import os
import re
from pathlib import Path

from cffi import FFI

PREFIX = Path(os.environ["VELMORA_PREFIX"]).resolve()


def declarations(header: str) -> str:
    """What the header declares, without comments, directives and what is said to C++ alone."""
    text = re.sub(r"/\*.*?\*/", "", header, flags=re.S)
    text = re.sub(r"#ifdef __cplusplus\n.*?#endif\n", "", text, flags=re.S)
    text = re.sub(r"^\s*#.*$", "", text, flags=re.M)
    return text.replace("VELMORA_API ", "")


interface = FFI()
interface.cdef(declarations((PREFIX / "include/velmora/c/velmora.h").read_text()))
interface.set_source(
    "velmora._velmora",
    "#include <velmora/c/velmora.h>",
    include_dirs=[str(PREFIX / "include")],
    library_dirs=[str(path.parent) for path in PREFIX.glob("lib*/**/libvelmora.so")],
    libraries=["velmora"],
    extra_link_args=["-Wl,-rpath,$ORIGIN/lib"],
)
