# The maker's configuration service as tests need it: answers on loopback, and misbehaves when told to.
#
# usage: reference_server.py [--certificate FILE] [--name HOST]
#
# Prints its address as one line. FILE holds a certificate and its key in PEM; with it the server speaks HTTPS. Then it
# obeys commands on standard input, one JSON object a line, answers each with a line of JSON, and ends when standard input
# does:
#
#     {"fault": NAME, "detail": TEXT}        how every request is treated from now on: a method of Handler
#     {"status": NUMBER}                     the status code of answers from now on
#     {}                                     nothing; the answer of each command lists the requests seen so far, the
#                                            bytes dripped, and how many clients have left before their answer was whole

import argparse
import json
import ssl
import sys
import threading
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from urllib.parse import parse_qsl

DRIP = 0.02  # seconds between two bytes
ENDLESS = 1 << 30  # bytes


class Service:
    def __init__(self):
        self.fault = None
        self.detail = None
        self.status = 200
        self.requests = []
        self.dripped = 0
        self.left = 0

    def obey(self, command):
        if "fault" in command:
            self.fault = command["fault"]
            self.detail = command.get("detail")
        self.status = command.get("status", self.status)
        return {"requests": self.requests, "dripped": self.dripped, "left": self.left}

    def answer(self, path, form):
        """The answer's status code and text."""
        if path == "/v1/Event/" and form.get("name"):
            return self.status, json.dumps({"result": True})
        return 404, json.dumps({"error": "unknown function or parameter"})


class Handler(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"]))
        form = dict(parse_qsl(body.decode(), keep_blank_values=True))
        service = self.server.service
        service.requests.append({"path": self.path, "body": body.decode(), "form": form,
                                 "headers": {name.lower(): value for name, value in self.headers.items()}})
        if service.fault and not self._is_redirected():
            getattr(self, "_" + service.fault)()
            return
        status, text = service.answer(self.path, form)
        self._send(text.encode(), status)

    def _send(self, body, status=200, length=None):
        self.send_response(status)
        self.send_header("Content-Type", "application/json")
        self.send_header("Content-Length", str(len(body) if length is None else length))
        self.end_headers()
        self.wfile.write(body)

    def _drip(self):
        try:
            self._send(b"", length=ENDLESS)
            while not self._is_left():
                self.wfile.write(b" ")
                self.server.service.dripped += 1
        except OSError:  # it left in the midst of being told something
            self.server.service.left += 1

    def _is_left(self):
        """Whether the client has gone within the time of one drip; it sends nothing more otherwise."""
        self.connection.settimeout(DRIP)
        try:
            left = not self.connection.recv(1)
        except TimeoutError:
            left = False
        except OSError:
            left = True
        self.server.service.left += left
        return left

    def _half(self):
        self._send(b'{"result": {"type": "Str', self.server.service.status, length=60)
        self.close_connection = True

    def _long(self):
        self._send(b" " * int(self.server.service.detail))

    def _redirect(self):
        self.send_response(307)
        self.send_header("Location", self.server.service.detail)
        self.send_header("Content-Length", "0")
        self.end_headers()

    def _is_redirected(self):
        """Whether this is where a redirect of this server leads."""
        service = self.server.service
        return service.fault == "redirect" and self.path == service.detail

    def log_message(self, *_):
        pass


class Server(ThreadingHTTPServer):
    daemon_threads = True

    def handle_error(self, *_):
        """Clients that leave in the middle are what the tests are about."""


def main():
    parser = argparse.ArgumentParser(description="The maker's configuration service, for tests.")
    parser.add_argument("--certificate")
    parser.add_argument("--name", default="127.0.0.1", help="host name in the address; it must mean this machine")
    chosen = parser.parse_args()
    server = Server(("127.0.0.1", 0), Handler)
    server.service = Service()
    if chosen.certificate:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(chosen.certificate)
        # The handshake belongs to the connection's thread: a client that breaks it off must not stop the others.
        server.socket = context.wrap_socket(server.socket, server_side=True, do_handshake_on_connect=False)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    scheme = "https" if chosen.certificate else "http"
    print(f"{scheme}://{chosen.name}:{server.server_port}", flush=True)
    for line in sys.stdin:
        print(json.dumps(server.service.obey(json.loads(line))), flush=True)


if __name__ == "__main__":
    main()
