"""What the install tests share: running commands, telling results, using an installed tree."""

import os
import pathlib
import re
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
EXAMPLES = HERE.parent.parent / "examples"
QT_LIBRARY = re.compile(r"libQt(\d)Core\.so")
# mangled names of templates of the C++ library and of Qt that were made here, and the linker's own
FOREIGN = re.compile(
    r"_Z(?:GV|T[ISTVC])?Z?N?K?(?:S[a-z]|9__gnu_cxx|\d+Q[A-Z])"
    r"|(?:_init|_fini|_edata|_end|__bss_start)$"
)


def foreign_symbol(name):
    """Whether a mangled name is one that applications do not get from our headers."""
    return FOREIGN.match(name) is not None


def run(*command, env=None, **options):
    """Runs a command to its end and gives what it printed; ends the test when it fails."""
    command = [str(word) for word in command]
    done = subprocess.run(
        command,
        env={**os.environ, **(env or {})},
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
        **options,
    )
    if done.returncode != 0:
        sys.exit(f"failed ({done.returncode}): {' '.join(command)}\n{done.stdout}")
    return done.stdout


def expect(condition, text):
    if not condition:
        sys.exit(f"FAILED: {text}")
    print(f"ok: {text}", flush=True)


class Tree:
    """An installed tree, and programs that are built against it."""

    def __init__(self, prefix, libdir, options):
        self.prefix = pathlib.Path(prefix)
        self.libraries = self.prefix / libdir
        self.options = options  # cmake, generator, compiler

    def environment(self):
        return {"LD_LIBRARY_PATH": str(self.libraries), "QT_QPA_PLATFORM": "offscreen"}

    def build(self, source, build, *definitions):
        run(
            self.options.cmake, "-S", source, "-B", build, "-G", self.options.generator,
            f"-DCMAKE_PREFIX_PATH={self.prefix}",
            f"-DCMAKE_CXX_COMPILER={self.options.compiler}", "-DCMAKE_BUILD_TYPE=Debug",
            "-DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF", *definitions,
        )
        run(self.options.cmake, "--build", build)

    def pkg_config(self, *words):
        folder = str(self.libraries / "pkgconfig")
        return run("pkg-config", *words, env={"PKG_CONFIG_PATH": folder}).split()

    def compile(self, package, source, program):
        run(
            self.options.compiler, "-std=c++17", "-fPIC", *self.pkg_config("--cflags", package),
            source, "-o", program, *self.pkg_config("--libs", package),
        )

    def loaded(self, program):
        """The libraries that a program would start with, as ldd tells."""
        return run("ldd", program, env=self.environment())

    def qt_versions(self, program):
        return set(QT_LIBRARY.findall(self.loaded(program)))

    def expect_lives(self, program, root, how):
        """Starts a program that ends at a touch only, and sees that it neither ends nor crashes."""
        env = {**os.environ, **self.environment(), "QTPANFX_SYSROOT": str(root)}
        with subprocess.Popen([program], env=env) as process:
            time.sleep(1)
            status = process.poll()
            process.terminate()
        expect(status is None, f"{pathlib.Path(program).name}, built by {how}, starts and stays")
