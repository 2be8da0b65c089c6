#!/bin/bash
# What docs/manual/many.md says of several machines, run as it stands there, on this one: GNU parallel over ssh to two hosts that
# are this machine, a Slurm cluster of one node of which the jobs are killed half way and handed in again, and the pod of the
# Kubernetes job in a sandbox that has nothing but the programs, their libraries and the volume.
#     scripts/test_cluster.sh BIN
set -eu
bin=$(realpath "$1")
here=$(dirname "$(realpath "$0")")
manual=$here/../docs/manual/many.md
[ "$(id -u)" = 0 ] || { echo "a cluster needs root" >&2; exit 1; }
missing=""
for package in parallel openssh-server slurm-wlm bubblewrap; do
    dpkg -s "$package" >/dev/null 2>&1 || missing="$missing $package"
done
# shellcheck disable=SC2086
[ -z "$missing" ] || RUNLEVEL=1 DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $missing

scratch=$(mktemp -d)
pids=""
finish() {
    status=$?
    trap - EXIT
    for pid in $pids; do kill "$pid" 2>/dev/null || true; done
    for pid in $pids; do while kill -0 "$pid" 2>/dev/null && ! grep -q '^State:.Z' "/proc/$pid/status" 2>/dev/null; do sleep 0.1; done; done
    [ "$status" = 0 ] || tail -n 20 "$scratch"/*.log >&2 || true
    rm -rf "$scratch"
    exit "$status"
}
trap finish EXIT
fail() {
    echo "FAILED: $*" >&2
    exit 1
}
until_true() {
    what=$1 patience=$(($(date +%s) + 180))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$(date +%s)" -lt "$patience" ] || fail "waited in vain: $what"
        sleep 0.05
    done
}
# block LANGUAGE AFTER: the first block of that language behind the heading
block() { awk -v language="$1" -v after="$2" 'index($0, after) == 1 {found=1} found && $0 == "```" language {on=1; next} /^```/{if (on) exit} on' "$manual"; }
pictures=160
export PATH=$bin:$PATH
unset SLURM_CONF
cd "$scratch"
mkdir holiday
convert -size 900x700 plasma:red-blue -quality 90 holiday/1.jpg
for i in $(seq 2 $pictures); do cp holiday/1.jpg "holiday/$i.jpg"; done
block sh "## Keep it" | sed '/^velara-batch/d' >recipe.sh
bash -eu recipe.sh
velara-batch holiday --recipe small.recipe --into wanted --format jpg 2>wanted.log || fail "an undisturbed run"
outputs() { find web -type f | wc -l; }
whole() {
    for file in $(find web -type f); do cmp -s "$file" "wanted/$(basename "$file")" || fail "$1: $file is not whole"; done
}
all_done() {
    [ "$(outputs)" = $pictures ] || fail "$1: $(outputs) of $pictures pictures"
    whole "$1"
    rm -rf web report-*.json
}

# --- GNU parallel. Two hosts are this machine, by an ssh server of our own.
ssh-keygen -q -t ed25519 -N '' -f host_key
ssh-keygen -q -t ed25519 -N '' -f key
cp key.pub authorized
mkdir -p /run/sshd
port=$(python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
cat >sshd_config <<END
Port $port
ListenAddress 127.0.0.1
HostKey $scratch/host_key
AuthorizedKeysFile $scratch/authorized
StrictModes no
PermitRootLogin prohibit-password
UsePAM no
PidFile none
SetEnv PATH=$PATH
END
cat >ssh_config <<END
Host anna bert
    HostName 127.0.0.1
    Port $port
    IdentityFile $scratch/key
    StrictHostKeyChecking no
    UserKnownHostsFile $scratch/known
    LogLevel ERROR
END
/usr/sbin/sshd -D -e -f "$scratch/sshd_config" 2>sshd.log &
pids="$pids $!"
until_true "the ssh server" ssh -F ssh_config anna true
export PARALLEL_SSH="ssh -F $scratch/ssh_config" PARALLEL_HOME=$scratch/parallel
mkdir -p "$PARALLEL_HOME" && touch "$PARALLEL_HOME/will-cite"
block sh "### GNU parallel" >parallel.sh
grep -q -- '--sshlogin :,anna,bert' parallel.sh || fail "the manual has no block for parallel"
bash -eu parallel.sh >parallel.log 2>&1 || fail "parallel"
[ "$(grep -c 'Accepted publickey' sshd.log)" -ge 3 ] || fail "the other hosts were not used"
all_done "parallel"
echo "GNU parallel: $pictures pictures in 8 parts, on this machine and two hosts by ssh"

# --- Slurm. Its node is killed with its jobs half way; then the same file is handed in again.
mkdir state spool
read -r slurmctld_port slurmd_port <<<"$(python3 -c '
import socket
held = [socket.socket() for _ in range(2)]
for s in held: s.bind(("127.0.0.1", 0))
print(*[s.getsockname()[1] for s in held])')"
cat >slurm.conf <<END
ClusterName=one
SlurmctldHost=$(hostname -s)(127.0.0.1)
SlurmctldPort=$slurmctld_port
SlurmdPort=$slurmd_port
SlurmUser=root
AuthType=auth/none
CredType=cred/none
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
ReturnToService=2
SwitchType=switch/none
MpiDefault=none
StateSaveLocation=$scratch/state
SlurmdSpoolDir=$scratch/spool
SlurmctldPidFile=$scratch/slurmctld.pid
SlurmdPidFile=$scratch/slurmd.pid
SlurmctldLogFile=$scratch/slurmctld.log
SlurmdLogFile=$scratch/slurmd.log
InactiveLimit=0
KillWait=5
NodeName=$(hostname -s) NodeAddr=127.0.0.1 CPUs=$(nproc) State=UNKNOWN
PartitionName=all Nodes=ALL Default=YES MaxTime=INFINITE State=UP
END
export SLURM_CONF=$scratch/slurm.conf
slurmctld -D >slurmctld.out.log 2>&1 &
pids="$pids $!"
start_node() {
    slurmd -D -N "$(hostname -s)" >slurmd.out.log 2>&1 &
    node=$!
    pids="$pids $node"
    until_true "the node" sh -c "sinfo -h -o %t | grep -q idle"
}
start_node
block sbatch "### Slurm" >many.sbatch
grep -q -- '--array=1-8' many.sbatch || fail "the manual has no block for Slurm"
mkdir web
sbatch many.sbatch >sbatch.log || fail "sbatch"
half() { [ "$(outputs)" -ge $((pictures / 8)) ]; }
until_true "a part of the pictures" half
running() { scontrol listpids 2>/dev/null | awk 'NR > 1 && $1 > 0 {print $1}'; }
is_running() { [ -n "$(running)" ]; }
until_true "a job on the node" is_running
killed=$(running)
for pid in $killed; do kill -KILL "$pid" 2>/dev/null || true; done
scancel -n pictures
until_true "the end of what was killed" sh -c "[ -z \"\$(squeue -h)\" ]"
left=$(outputs)
[ "$left" -lt $pictures ] || fail "all was done before the jobs were killed"
whole "Slurm, killed"
sbatch --wait many.sbatch >>sbatch.log || fail "handed in again: $(cat pictures-*.log)"
all_done "Slurm"
echo "Slurm: killed with $left of $pictures pictures done, handed in again: all done"

# --- Kubernetes. The pod's command in a root that has the programs and their libraries alone; without a net.
root=$scratch/root
mkdir -p "$root/usr/bin" "$root/bin" "$root"/{tmp,pictures,proc,dev}
cp "$bin/velara-batch" "$bin/velara-batch-all" "$bin/velara-decode" "$bin/velara-decode-all" "$bin/velara-encode" "$root/usr/bin/"
cp /bin/dash "$root/bin/sh"
for file in $(ldd "$root"/usr/bin/* "$root/bin/sh" | grep -o '/[^ ]*\.so[^ ]*' | sort -u); do
    mkdir -p "$root$(dirname "$file")"
    cp -L "$file" "$root$file"
done
block pod "### Kubernetes" >pod.sh
grep -q 'JOB_COMPLETION_INDEX + 1' pod.sh || fail "the manual has no block for Kubernetes"
python3 - "$here/../packaging/kubernetes/job.yaml" pod.sh <<'PYTHON' || fail "job.yaml runs another command than the manual says"
import sys
text = open(sys.argv[1]).read().split(">-\n")[1].split("resources:")[0]
sys.exit(text.split() != open(sys.argv[2]).read().replace("\\\n", " ").split())
PYTHON
pod() { # pod INDEX
    bwrap --unshare-all --die-with-parent --ro-bind "$root" / --bind "$scratch" /pictures --tmpfs /tmp --proc /proc --dev /dev \
        --clearenv --setenv PATH /usr/bin:/bin --setenv JOB_COMPLETION_INDEX "$1" /bin/sh -c "$(cat pod.sh)"
}
pod 0 >pod.log 2>&1 &
first=$!
until_true "a picture of the first pod" sh -c "[ -n \"\$(find web -name '*.jpg')\" ]"
kill -KILL "$first" 2>/dev/null || true # as when its machine goes; it is started again
wait "$first" || true
for index in 0 1 2 3 4 5 6 7; do pod "$index" >>pod.log 2>&1 || fail "pod $index"; done
all_done "Kubernetes"
echo "Kubernetes: 8 pods of an Indexed Job in sandboxes, the first killed and started again"
