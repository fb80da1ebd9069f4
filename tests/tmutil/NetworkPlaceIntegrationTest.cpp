#include "BackupFixture.h"

namespace quillon {

/// Backups to real servers on loopback: sshd, and rclone as restic's REST server.
class NetworkPlaceIntegration : public BackupIntegration {
protected:
    /// Servers end with the script that has started them.
    const QByteArray words_ = R"sh(
unset SSH_AUTH_SOCK; servers=; trap 'kill $servers 2>/dev/null; wait' EXIT
python() { python3 -c "import socket, time; s = socket.socket(); s.bind(('127.0.0.1', 0)); $1"; }
port=$(python 'print(s.getsockname()[1])')
listens() { python3 -c "import socket; socket.create_connection(('127.0.0.1', $port))"; }
serve() { "$@" >>server.log 2>&1 & server=$! servers="$servers $!"; wait_for listens; }
stop() { kill $server; wait $server; } 2>/dev/null
[ -e key ] || for name in key stranger host; do ssh-keygen -q -t ed25519 -N '' -f $name; done
[ $(id -u) != 0 ] || mkdir -p /run/sshd
sftp=sftp://$(id -un)@127.0.0.1:$port$PWD/away
cat >sshd_config <<END
Port $port
ListenAddress 127.0.0.1
HostKey $PWD/host
AuthorizedKeysFile $PWD/key.pub
PidFile none
StrictModes no
PasswordAuthentication no
Subsystem sftp internal-sftp
END
sshd() { serve /usr/sbin/sshd -D -e -f $PWD/sshd_config; }
fingerprint() { ssh-keygen -lf $1.pub | cut -d ' ' -f 2; }
attempt() {
    ./tmutil setdestination ${how---try} -X "$@" >told 2>said; status=$?
    echo $status $(sed -n '/<key>\(Cause\|Contents\|Fingerprint\)</{n;s/<[^>]*>//gp}' told)
}
echo "key-file=$PWD/key" >by_key
use_sftp() { ./tmutil setdestination -a --credentials by_key --accept-host-key $(fingerprint host) "$@" $sftp >said; }
id_of_place() { ls config/quillon-timemachine/places | sed 's/\.plist//'; }
away() {
    restic -q -r away --no-cache --password-file config/quillon-timemachine/keys/$(id_of_place).key "$@"
}
)sh";
};

TEST_F(NetworkPlaceIntegration, AServerIsUsedOnceItAndTheUserAreKnownToEachOther)
{
    expect(words_ + R"sh(
attempt $sftp; sshd
attempt --credentials by_key $sftp | sed "s,$(fingerprint host),SHOWN,"
accepted="--accept-host-key $(fingerprint host)"
attempt --credentials by_key --accept-host-key $(fingerprint stranger) $sftp; sed -n 's/.*\(nothing was set\).*/\1/p' said
echo "key-file=$PWD/stranger" | attempt --credentials - $accepted $sftp
attempt --credentials by_key $accepted $sftp
ls config/quillon-timemachine | grep -v plist # a trial keeps nothing
use_sftp; attempt $sftp
ls -l config/quillon-timemachine/places/* config/quillon-timemachine/known_hosts | cut -c 1-10
tmutil destinationinfo -X | grep -A 1 -e '>Kind' -e '>URL' -e '>Path' -e '>Name' | sed -n "s,$sftp,URL,;s/.*<string>\(.*\)<.*/\1/p"
mv host kept; mv stranger host; stop; sshd; (how=-a; attempt $sftp) | sed "s,$(fingerprint stranger).*,SHOWN,"
./tmutil startbackup -b 2>said; echo $?; cause
mv kept host; stop; sshd
echo of years of work >source/file; back_up; attempt $sftp
record=$(ls away/snapshots); chmod u+w away/snapshots/*; truncate -s 10 away/snapshots/*; rm -r cache
back_up >said; cause; tmutil listbackups | wc -l
back_up | grep -c "snapshots/$record\.$"; cause; tmutil listbackups | wc -l
)sh",
           "4 DestinationMissing\n16 UnknownHostKey SHOWN\n16\nnothing was set\n77 AccessDenied\n0 Empty\n0 Backups\n"
           "-rw-------\n-rw-------\nNetwork\naway\nURL\n"
           "16 ChangedHostKey SHOWN\n1\nChangedHostKey\n0 Backups\n"
           "BackupsLost\n1\n1\nDamaged\n1\n");
}

TEST_F(NetworkPlaceIntegration, BackupsAtAServerAreReadRestoredVerifiedAndTakenUpLikeThoseOnADisk)
{
    expect(words_ + R"sh(
sshd; use_sftp --upload-limit 20000; key=$(sed -n 's/^    \([^ ]*\)$/\1/p' said)
mkdir source/folder; echo of years of work >source/folder/file; back_up
latest=$(tmutil latestbackup); echo "$latest" | sed "s,^$sftp/$(hostname)/20.*,NAME,"
tmutil listfiles "$latest$PWD/source/folder" | wc -l
tmutil findfiles fil | grep -c "$latest$PWD/source/folder/file$"
tmutil versions $PWD/source/folder/file | wc -l
restore source/folder restored; same source/folder restored
tmutil verify
renewed=$(tmutil recoverykey | sed -n 's/^    \([^ ]*\)$/\1/p')
computer other
for one in $key $renewed; do
    (cat by_key; echo; echo $one) | other/tmutil adopt --credentials - --accept-host-key $(fingerprint host) $sftp >said 2>&1
    echo $?
done
other/tmutil restore "$latest$PWD/source/folder" again; same source/folder again
{ away backup source & wait_for 'ls away/locks/*'; kill -9 $!; wait $!; } >said 2>&1 # leaves its lock
back_up; tmutil listbackups | wc -l; ls away/locks | wc -l
stop
use disk; back_up 2>said; tmutil listbackups | grep -c ^$PWD/disk # the usual one is away, and the disk is there
tmutil startbackup -d $(id_of_place) 2>said; grep -c 'cannot be reached' said
tmutil removedestination $(id_of_place); grep -c key-file config/quillon-timemachine/places/*
sshd; use_sftp; tmutil listbackups | grep -c "^$sftp"
tmutil deletebackup "$(tmutil listbackups | grep "^$sftp")"; tmutil listbackups | grep -c "^$sftp"
away check >/dev/null && echo sound
)sh",
           "NAME\n1\n1\n1\nsame\nNo damage was found.\n15\n0\nsame\n1\n0\n1\nstartbackup: 4\n1\n0\n1\n0\nsound\n");
}

TEST_F(NetworkPlaceIntegration, AConnectionThatBreaksFailsTheRunAndTheNextGoesOnFromWhatWasSent)
{
    expect(words_ + R"sh(
sshd; use_sftp --upload-limit 3000
head -c 60000000 /dev/urandom >source/large; tmutil startbackup; wait_for 'ls away/data/*/*'
kill $(pgrep -P $server); wait_for '! runs'; cause
use_sftp --upload-limit 0; sent=$(du -sm away/data | cut -f 1); [ $sent -lt 50 ] && back_up
tmutil listbackups | wc -l; [ $(du -sm away | cut -f 1) -lt 70 ] && echo once
# A server that takes the connection and says nothing.
stop; python "s.listen(); print(s.getsockname()[1], flush=True); time.sleep(600)" >silent & servers="$servers $!"
wait_for '[ -s silent ]'; attempt sftp://127.0.0.1:$(cat silent)/away
)sh",
           "ConnectionLost\n1\nonce\n4 DestinationMissing\n");
}

TEST_F(NetworkPlaceIntegration, AFullServerFailsTheRunWithItsReasonAndLosesNothing)
{
    expectWithMounts(words_ + R"sh(
mkdir away && mount -t tmpfs -o size=8m none away || exit
sshd; sftp=$sftp/backups; use_sftp; echo small >source/small; back_up
cp -a away/backups/snapshots before
head -c 20000000 /dev/urandom >source/large; back_up 2>&1; cause; same before away/backups/snapshots
mount -o remount,size=64m away; back_up; cause; tmutil verify
)sh",
                     "tmutil: The server has failed with an error of its own; it may be full.\nstartbackup: 1\n"
                     "ServerFailed\nsame\nNo damage was found.\n");
}

TEST_F(NetworkPlaceIntegration, ARestServerNeedsACertificateAndAPasswordThatNobodyElseSees)
{
    expect(words_ + R"sh(
openssl req -x509 -newkey rsa:2048 -nodes -keyout tls.key -out tls.pem -days 3 -subj /CN=localhost \
    -addext subjectAltName=DNS:localhost 2>said
rest=rest:https://localhost:$port/desk
rclone() {
    serve /usr/bin/rclone serve restic --config none --addr 127.0.0.1:$port --cert tls.pem --key tls.key \
        --user anna --pass 's3cret:@/%' store
}
rclone
(echo user=anna; echo 'password=s3cret:@/%') >password; (cat password; echo "ca-file=$PWD/tls.pem") >all
attempt --credentials password $rest
sed s/s3cret/wrong/ all | attempt --credentials - $rest
attempt --credentials all $rest
tmutil setdestination --upload-limit 3000 --credentials all $rest >said
tmutil destinationinfo | grep -c "rest:https://anna@localhost:$port/desk"
head -c 20000000 /dev/urandom >source/large; tmutil startbackup; wait_for 'ls store/desk/data/*/*'
child=$(child_of $(worker)); tr '\0' ' ' </proc/$child/cmdline | grep -c -e backup; grep -c s3cret /proc/$child/cmdline
stop; rclone; wait_for '! runs' # a short break is none
tmutil listbackups | wc -l; grep -rl s3cret config state | sed 's,.*/places/.*,kept,'
)sh",
           "16 BadCertificate\n77 AccessDenied\n0 Empty\n1\n1\n0\n1\nkept\n");
}

} // namespace quillon
