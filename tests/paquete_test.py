"""The Debian package, unpacked: whole, and its program unfolds. Usage: paquete_test.py CPACK CONFIG JOBS"""
import configparser
import pathlib
import subprocess
import sys
import tempfile

cpack, config, jobs = sys.argv[1:]
with tempfile.TemporaryDirectory() as folder:
    folder = pathlib.Path(folder)
    subprocess.run([cpack, "--config", config, "-B", folder], check=True, stdout=subprocess.DEVNULL)
    package, = folder.glob("*.deb")
    root = folder / "root"
    subprocess.run(["dpkg-deb", "-x", package, root], check=True)
    kept = subprocess.run(["dpkg-deb", "-I", package, "conffiles"], check=True, capture_output=True, text=True).stdout
    assert kept and all((root / name[1:]).is_file() for name in kept.split()), kept
    entry = configparser.ConfigParser(interpolation=None)
    entry.read(root / "usr/share/applications/duktores.desktop")
    entry = entry["Desktop Entry"]
    for link in root / "usr/bin" / entry["Exec"], root / "usr/bin/duktores-batch":
        assert (root / str(link.readlink())[1:]).is_file(), link
    assert (root / f"usr/share/icons/hicolor/scalable/apps/{entry['Icon']}.svg").is_file()
    assert "All rights reserved" in (root / "usr/share/doc/duktores/copyright").read_text()
    assert all((root / f"opt/duktores/Duct/Manual/{language}/index.md").is_file() for language in ("en", "es"))
    subprocess.run([root / "opt/duktores/Duct/duktores-batch", "--out", folder / "out", jobs], check=True,
                   stdout=subprocess.DEVNULL)
