#!/usr/bin/python3
"""Runs a command of restic that makes a key, then writes the key anew with a derivation that costs next to nothing.

restic makes deriving a key cost up to half a second of processor time, and each of its calls derives one: most of what
the tests would take. The format is that of restic's design document, "Keys, Encryption and MAC".
"""

import base64
import hashlib
import json
import os
import signal
import subprocess
import sys
from pathlib import Path

from cryptography.hazmat.primitives.ciphers import Cipher, algorithms, modes
from cryptography.hazmat.primitives.poly1305 import Poly1305

RESTIC = "/usr/bin/restic"
CHEAP = {"N": 2, "r": 1, "p": 1}
NONCE, MAC = 16, 16


def derived(password, salt, kdf):
    memory = 256 * kdf["N"] * kdf["r"] * kdf["p"] + (1 << 20)
    return hashlib.scrypt(password, salt=salt, n=kdf["N"], r=kdf["r"], p=kdf["p"], maxmem=memory, dklen=64)


def crypt(key, nonce, text):
    cipher = Cipher(algorithms.AES(key[:32]), modes.CTR(nonce)).encryptor()
    return cipher.update(text) + cipher.finalize()


def mac(key, nonce, text):
    block = Cipher(algorithms.AES(key[32:48]), modes.ECB()).encryptor()
    return Poly1305.generate_tag(key[48:64] + block.update(nonce), text)


def lighten(path, password):
    entry = json.loads(path.read_bytes())
    data, salt = base64.b64decode(entry["data"]), base64.b64decode(entry["salt"])
    nonce, text, tag = data[:NONCE], data[NONCE:-MAC], data[-MAC:]
    key = derived(password, salt, entry)
    if entry["N"] == CHEAP["N"] or mac(key, nonce, text) != tag:
        return
    entry |= CHEAP
    cheap = derived(password, salt, entry)
    text = crypt(cheap, nonce, crypt(key, nonce, text))
    entry["data"] = base64.b64encode(nonce + text + mac(cheap, nonce, text)).decode()
    content = json.dumps(entry).encode()
    light = path.with_name(hashlib.sha256(content).hexdigest())
    light.write_bytes(content)
    light.chmod(path.stat().st_mode)
    path.unlink()


def main():
    arguments = sys.argv[1:]
    restic = subprocess.Popen([RESTIC, *arguments])
    for number in (signal.SIGINT, signal.SIGTERM):
        signal.signal(number, lambda received, _: restic.send_signal(received))
    status = restic.wait()
    keys = Path("keys")
    if status == 0 and keys.is_dir():
        given = "--new-password-file"
        file = arguments[arguments.index(given) + 1] if given in arguments else os.environ["RESTIC_PASSWORD_FILE"]
        password = Path(file).read_bytes().splitlines()[0]
        for key in list(keys.iterdir()):
            lighten(key, password)
    return status if status >= 0 else 128 - status


if __name__ == "__main__":
    sys.exit(main())
