"""A feed server with one canned answer, over HTTP or HTTPS, that knows how long its answers took."""

import http.server
import os
import shutil
import ssl
import subprocess
import threading
import time

SYSTEM_CERTIFICATES = "/etc/ssl/certs"


class _Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_GET(self):
        begun = time.monotonic()
        body = self.server.body
        self.send_response(200)
        self.send_header("Content-Type", "application/json")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)
        self.server.answer_times.append((time.monotonic() - begun) * 1000)

    def log_message(self, *_):
        pass


class Feed:
    """Serves a body on loopback, on a thread. With a certificate it speaks TLS."""

    def __init__(self, body, certificate=None):
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), _Handler)
        self.server.body = body
        self.server.answer_times = []
        if certificate:
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(certificate)
            self.server.socket = context.wrap_socket(self.server.socket, server_side=True)
        scheme = "https" if certificate else "http"
        self.address = f"{scheme}://127.0.0.1:{self.server.server_address[1]}/"

    def last_answer_time(self):
        """Milliseconds from the request's last byte to the answer's, in the server."""
        return self.server.answer_times[-1]

    def __enter__(self):
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        return self

    def __exit__(self, *_):
        self.server.shutdown()
        self.server.server_close()


def make_certificate(folder):
    """A key and a certificate for 127.0.0.1 in one file, for a day."""
    path = os.path.join(folder, "feed.pem")
    subprocess.run(
        ["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "1", "-keyout", path,
         "-out", path + ".crt", "-subj", "/CN=127.0.0.1", "-addext", "subjectAltName=IP:127.0.0.1"],
        check=True, capture_output=True)
    with open(path, "a", encoding="ascii") as both, open(path + ".crt", encoding="ascii") as own:
        both.write(own.read())
    return path


def trusting(certificate, folder):
    """The start of a command line whose program finds this certificate among the system's.

    The program's checks stay as they are: it runs in a mount namespace of its own where the system's
    folder of certificates has one more."""
    certificates = os.path.join(folder, "certificates")
    shutil.copytree(SYSTEM_CERTIFICATES, certificates, ignore_dangling_symlinks=True)
    name = subprocess.run(["openssl", "x509", "-hash", "-noout", "-in", certificate + ".crt"],
                          check=True, capture_output=True, text=True).stdout.strip()
    shutil.copy(certificate + ".crt", os.path.join(certificates, name + ".0"))
    script = f'mount --bind "{certificates}" {SYSTEM_CERTIFICATES} && exec "$@"'
    return [shutil.which("unshare"), "--map-root-user", "--mount", "sh", "-c", script, "sh"]
