#!/usr/bin/python3
"""Does what `restic init` and `restic key add` do, with keys whose derivation costs next to nothing.

restic makes deriving a key cost up to half a second of processor time, and measures for seconds how to: most of what
the tests would take. Whatever is out of the ordinary is left to restic itself, whose words count then; a repository at
a server is made by restic, and its keys are written anew where the address tells where they are. The formats are those
of restic's design document: "Repository Format", "Keys, Encryption and MAC".
"""

import base64
import getpass
import hashlib
import json
import os
import re
import secrets
import signal
import socket
import subprocess
import sys
from datetime import datetime, timezone
from pathlib import Path

from cryptography.hazmat.primitives.ciphers import Cipher, algorithms, modes
from cryptography.hazmat.primitives.poly1305 import Poly1305

RESTIC = "/usr/bin/restic"
CHEAP = {"N": 2, "r": 1, "p": 1}
NONCE, MAC, SALT, KEY = 16, 16, 64, 64
POLYNOMIAL = "25b468838dcb75"  # the design document's own
FOLDERS = ["data", "index", "keys", "locks", "snapshots"] + [f"data/{number:02x}" for number in range(256)]


def derived(password, salt, kdf):
    memory = 256 * kdf["N"] * kdf["r"] * kdf["p"] + (1 << 20)
    return hashlib.scrypt(password, salt=salt, n=kdf["N"], r=kdf["r"], p=kdf["p"], maxmem=memory, dklen=KEY)


def crypt(key, nonce, text):
    cipher = Cipher(algorithms.AES(key[:32]), modes.CTR(nonce)).encryptor()
    return cipher.update(text) + cipher.finalize()


def mac(key, nonce, text):
    block = Cipher(algorithms.AES(key[32:48]), modes.ECB()).encryptor()
    return Poly1305.generate_tag(key[48:64] + block.update(nonce), text)


def sealed(key, text):
    nonce = secrets.token_bytes(NONCE)
    text = crypt(key, nonce, text)
    return nonce + text + mac(key, nonce, text)


def opened(key, data):
    nonce, text, tag = data[:NONCE], data[NONCE:-MAC], data[-MAC:]
    return crypt(key, nonce, text) if mac(key, nonce, text) == tag else None


def write(path, content):
    fresh = path.with_name(path.name + ".fresh")
    fresh.write_bytes(content)
    fresh.chmod(0o400)
    fresh.rename(path)


def write_key(folder, entry, master, password):
    salt = secrets.token_bytes(SALT)
    entry = entry | CHEAP | {"kdf": "scrypt", "salt": base64.b64encode(salt).decode()}
    entry["data"] = base64.b64encode(sealed(derived(password, salt, CHEAP), master)).decode()
    content = json.dumps(entry).encode()
    write(folder / hashlib.sha256(content).hexdigest(), content)


def master_of(path, password):
    entry = json.loads(path.read_bytes())
    return entry, opened(derived(password, base64.b64decode(entry["salt"]), entry), base64.b64decode(entry["data"]))


def newly(user):
    return {"created": datetime.now(timezone.utc).isoformat().replace("+00:00", "Z"), "username": user,
            "hostname": socket.gethostname()}


def password_in(file):
    return Path(file).read_bytes().splitlines()[0]


def option(arguments, name, default=None):
    return arguments[arguments.index(name) + 1] if name in arguments else default


def make(folder, password):
    """False where the folder has something already."""
    if any((folder / name).exists() for name in ("config", *FOLDERS)):
        return False
    for name in FOLDERS:
        (folder / name).mkdir(mode=0o700)
    parts = [base64.b64encode(secrets.token_bytes(size)).decode() for size in (32, 16, 16)]
    master = {"encrypt": parts[0], "mac": {"k": parts[1], "r": parts[2]}}
    write_key(folder / "keys", newly(getpass.getuser()), json.dumps(master).encode(), password)
    config = {"version": 2, "id": secrets.token_hex(32), "chunker_polynomial": POLYNOMIAL}
    write(folder / "config", sealed(b"".join(base64.b64decode(part) for part in parts), json.dumps(config).encode()))
    return True


def add_key(folder, password, arguments):
    """False where the repository is in use, or not opened by a light key."""
    if any((folder / "locks").iterdir()):
        return False
    for path in (folder / "keys").iterdir():
        if json.loads(path.read_bytes())["N"] == CHEAP["N"]:
            _, master = master_of(path, password)
            if master:
                added = password_in(option(arguments, "--new-password-file"))
                write_key(folder / "keys", newly(option(arguments, "--user", getpass.getuser())), master, added)
                return True
    return False


def is_done_here(place, arguments):
    try:
        password = password_in(os.environ["RESTIC_PASSWORD_FILE"])
        return make(place, password) if "init" in arguments else add_key(place, password, arguments)
    except (OSError, IndexError, KeyError, ValueError):
        return False


def lighten(folder, password):
    for path in list(folder.iterdir()):
        entry, master = master_of(path, password)
        if entry["N"] != CHEAP["N"] and master:
            write_key(folder, entry, master, password)
            path.unlink()


def served_folder():
    """The folder behind a server of this computer; nothing where the address does not tell it."""
    address = re.fullmatch(r"sftp://[^/]*@127\.0\.0\.1:\d+/*(/.*)", os.environ.get("RESTIC_REPOSITORY", ""))
    return Path(address[1]) if address else None


def main():
    arguments = sys.argv[1:]
    if option(arguments, "--repo") == "." and is_done_here(Path(), arguments):
        return 0
    restic = subprocess.Popen([RESTIC, *arguments])
    for number in (signal.SIGINT, signal.SIGTERM):
        signal.signal(number, lambda received, _: restic.send_signal(received))
    status = restic.wait()
    place = served_folder()
    if status == 0 and place:
        file = option(arguments, "--new-password-file", os.environ.get("RESTIC_PASSWORD_FILE"))
        lighten(place / "keys", password_in(file))
    return status if status >= 0 else 128 - status


if __name__ == "__main__":
    sys.exit(main())
