"""An office of one's own: a fresh profile, an extension or none, and what drives it."""

import atexit
import contextlib
import functools
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time
import zipfile

import uno
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException
from com.sun.star.lang import DisposedException

SOURCE = pathlib.Path(__file__).resolve().parents[2]
EXTENSION = pathlib.Path(os.environ.get(
    "QUORVEX_EXTENSION", SOURCE / "build/release/hosts/calc/quorvex.oxt"))


@functools.cache
def bundle():
    """A folder of extensions that holds this one unpacked: an office takes them as they are."""
    folder = pathlib.Path(tempfile.mkdtemp(prefix="quorvex-bundle-"))
    atexit.register(shutil.rmtree, folder, ignore_errors=True)
    with zipfile.ZipFile(EXTENSION) as archive:
        archive.extractall(folder / "quorvex")
    return folder


def properties(**values):
    return tuple(PropertyValue(Name=name, Value=value) for name, value in values.items())


class Office:
    """A running office with the extension, or without. A home that is given stays."""

    def __init__(self, extended=True, language="C", display=None, home=None, limits=()):
        self.home = pathlib.Path(home or tempfile.mkdtemp(prefix="quorvex-office-"))
        self.keeps_home = home is not None
        self.environment = dict(
            os.environ, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / "config"),
            LC_ALL=language, LANG=language)
        self.environment.pop("DISPLAY", None)
        if display:
            self.environment.update(DISPLAY=display, SAL_USE_VCLPLUGIN="gen")
        extensions = bundle() if extended else self.home / "no-extensions"
        extensions.mkdir(exist_ok=True)
        self.pipe = f"quorvex{os.getpid()}x{id(self)}"
        # The office starts itself anew when it has made a profile, in the same session.
        self.process = subprocess.Popen(
            [*limits, "soffice", *([] if display else ["--headless"]), "--norestore",
             "--nologo", "--nofirststartwizard", self.profile_option(),
             f"-env:BUNDLED_EXTENSIONS=file://{extensions}",
             f"--accept=pipe,name={self.pipe};urp;"],
            env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True)
        self.context = self._connect()
        self.desktop = self.make("com.sun.star.frame.Desktop")

    def profile_option(self):
        return f"-env:UserInstallation=file://{self.home}/profile"

    def _connect(self, patience=120):
        local = uno.getComponentContext()
        resolver = local.ServiceManager.createInstanceWithContext(
            "com.sun.star.bridge.UnoUrlResolver", local)
        end = time.monotonic() + patience
        while True:
            try:
                return resolver.resolve(
                    f"uno:pipe,name={self.pipe};urp;StarOffice.ComponentContext")
            except NoConnectException:
                if time.monotonic() > end or self.process.poll() is not None:
                    self.kill()
                    raise
                time.sleep(0.1)

    def make(self, service):
        return self.context.ServiceManager.createInstanceWithContext(service, self.context)

    def open(self, url="private:factory/scalc", **options):
        options.setdefault("Hidden", True)
        return self.desktop.loadComponentFromURL(str(url), "_blank", 0, properties(**options))

    def processes(self):
        """The numbers of its processes, which share a session."""
        listed = subprocess.run(["ps", "-o", "pid=", "-s", str(self.process.pid)],
                                capture_output=True, text=True, check=False).stdout
        return [int(number) for number in listed.split()]

    def resident_bytes(self):
        sizes = (pathlib.Path(f"/proc/{number}/statm").read_text().split()[1]
                 for number in self.processes())
        return max(map(int, sizes)) * os.sysconf("SC_PAGE_SIZE")

    def cpu_seconds(self):
        def ticks(number):
            fields = pathlib.Path(f"/proc/{number}/stat").read_text().rsplit(")", 1)[1].split()
            return int(fields[11]) + int(fields[12])
        return max(map(ticks, self.processes())) / os.sysconf("SC_CLK_TCK")

    def is_alive(self):
        try:
            return self.desktop.getComponents() is not None
        except DisposedException:
            return False

    def kill(self):
        try:
            os.killpg(self.process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        self.process.wait()

    def close(self):
        """Ends the office as a user does. Gives its exit code, or None if it had to be killed."""
        with contextlib.suppress(Exception):  # it may go before it can answer
            self.desktop.terminate()
        try:
            return self.process.wait(60)
        except subprocess.TimeoutExpired:
            self.kill()
            return None
        finally:
            if not self.keeps_home:
                shutil.rmtree(self.home, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
