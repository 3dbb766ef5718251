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


def attempt(*command, env=None, **options):
    """Runs a command to its end; what it printed is in stdout, errors too."""
    return subprocess.run(
        [str(word) for word in command],
        env={**os.environ, **(env or {})},
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
        **options,
    )


def run(*command, **options):
    """Runs a command to its end and gives what it printed; ends the test when it fails."""
    done = attempt(*command, **options)
    if done.returncode != 0:
        sys.exit(f"failed ({done.returncode}): {' '.join(done.args)}\n{done.stdout}")
    return done.stdout


def expect_refused(reason, what, *command, **options):
    """Runs a command that has to fail, and sees that it says why."""
    done = attempt(*command, **options)
    said = " ".join(done.stdout.split())
    expect(done.returncode != 0 and reason in said, f"{what}: {reason}")


def cached(build, name):
    """A value in the cache of a build folder, or nothing."""
    cache = pathlib.Path(build) / "CMakeCache.txt"
    if not cache.is_file():
        return None
    for line in cache.read_text(encoding="utf-8").splitlines():
        if line.startswith(f"{name}:"):
            return line.partition("=")[2]
    return None


def expect(condition, text):
    if not condition:
        sys.exit(f"FAILED: {text}")
    print(f"ok: {text}", flush=True)


def is_waiting(process):
    """Whether a process sleeps with the panel's library loaded, as in its event loop."""
    try:
        libraries = pathlib.Path(f"/proc/{process.pid}/maps").read_text(encoding="utf-8")
        state = pathlib.Path(f"/proc/{process.pid}/stat").read_text(encoding="utf-8")
    except OSError:
        return False
    return "libQTPANFx" in libraries and state.rpartition(")")[2].split()[0] == "S"


def expect_stays(command, env, what):
    """Starts a program, waits until it waits for events, and sees that it goes on doing so."""
    in_a_row = 0
    with subprocess.Popen(command, env={**os.environ, **env}) as process:
        for _ in range(300):
            in_a_row = in_a_row + 1 if is_waiting(process) else 0
            if in_a_row == 5 or process.poll() is not None:
                break
            time.sleep(0.1)
        process.terminate()
    expect(in_a_row == 5, f"{what} starts and waits for touches")


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
        """Starts a program that ends at a touch only, and sees that it comes up and stays."""
        command = [str(program)]
        env = {**self.environment(), "QTPANFX_SYSROOT": str(root)}
        expect_stays(command, env, f"{pathlib.Path(program).name}, built by {how},")
