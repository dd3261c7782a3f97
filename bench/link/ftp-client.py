"""Carries files over one FTP connection to the port of 127.0.0.1 that is its argument.

Obeys lines on its input: the operation ("upload" or "download"), a local directory and a remote
one, separated by tabs. Carries all files of the source and answers with the seconds that took.
"""

import ftplib
import os
import sys
import time


def upload(ftp, local, remote):
    for entry in os.scandir(local):
        with open(entry.path, "rb") as file, ftp.transfercmd(f"STOR {remote}/{entry.name}") as data:
            data.sendfile(file)
        ftp.voidresp()


def download(ftp, local, remote):
    for name in ftp.nlst(remote):
        with open(os.path.join(local, os.path.basename(name)), "wb") as file:
            ftp.retrbinary(f"RETR {remote}/{os.path.basename(name)}", file.write)


def main():
    ftp = ftplib.FTP()
    ftp.connect("127.0.0.1", int(sys.argv[1]))
    ftp.login()
    ftp.voidcmd("TYPE I")
    for line in sys.stdin:
        operation, local, remote = line.rstrip("\n").split("\t")
        begin = time.monotonic()
        (upload if operation == "upload" else download)(ftp, local, remote)
        print(time.monotonic() - begin, flush=True)


main()
