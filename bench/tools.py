"""What several benchmarks need: tools of packages that are unpacked and never installed, medians."""
import pathlib
import shutil
import statistics
import subprocess


def unpacked(package, program, folder):
    """Path of a package's program. Where it is not installed, the package is downloaded and unpacked below `folder`, so
    that measuring against a mail server's tools does not start that server on the user's machine. Returns the path and
    the environment it needs."""
    import os

    environment = dict(os.environ)
    for place in ("/usr/sbin", "/usr/bin"):
        path = pathlib.Path(place) / program
        if path.exists():
            return path, environment
    root = pathlib.Path(folder) / "packages" / package
    if not root.exists():
        download = root.parent / (package + "-download")
        shutil.rmtree(download, ignore_errors=True)
        download.mkdir(parents=True)
        subprocess.run(["apt-get", "download", "-qq", package], cwd=download, check=True)
        subprocess.run(["dpkg", "-x", str(next(download.glob("*.deb"))), str(root)], check=True)
    found = [path for path in root.rglob(program) if path.is_file()]
    if not found:
        raise SystemExit(f"{package} holds no {program}")
    libraries = sorted({str(path.parent) for path in root.rglob("*.so*")})
    environment["LD_LIBRARY_PATH"] = ":".join(libraries)
    return found[0], environment


def median(values):
    return statistics.median(values)
