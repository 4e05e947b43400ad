// Where the settings of a camera are in its picture. Boxes have both corners inclusive, as the camera has them. Each
// shape reads its geometry from values of functions, and says which values another geometry takes.

import { isRecord } from './values.js';

/** Makes a box of four numbers that keeps its corners in order and within the numbers that a camera takes. */
function moveBox(box, { x, y }, dx, dy) {
	const clamp = (by, from) => Math.max(by, -from);
	if (x === 0 && y === 0) {
		const right = clamp(dx, box.left);
		const down = clamp(dy, box.top);
		return { left: box.left + right, top: box.top + down, right: box.right + right, bottom: box.bottom + down };
	}
	const next = { ...box };
	if (x !== 0) {
		next[x < 0 ? 'left' : 'right'] += dx;
	}
	if (y !== 0) {
		next[y < 0 ? 'top' : 'bottom'] += dy;
	}
	next.left = Math.max(Math.min(next.left, x < 0 ? next.right : next.left), 0);
	next.top = Math.max(Math.min(next.top, y < 0 ? next.bottom : next.top), 0);
	next.right = Math.max(next.right, next.left);
	next.bottom = Math.max(next.bottom, next.top);
	return next;
}

/** A handle on the right changes the size, one at the bottom the ratio. */
function moveEllipse(ellipse, { x, y }, dx, dy) {
	if (x === 0 && y === 0) {
		return { ...ellipse, x: ellipse.x + dx, y: ellipse.y + dy };
	}
	const across = Math.max(ellipse.across + (x ? dx : 0), 1);
	const down = x ? across * ellipse.down / Math.max(ellipse.across, 1) : Math.max(ellipse.down + dy, 0);
	return { ...ellipse, across, down };
}

const corners = [-1, 0, 1].flatMap((x) => [-1, 0, 1].map((y) => ({ x, y }))).filter(({ x, y }) => x !== 0 || y !== 0);
const boxOf = ({ startx, starty, endx, endy }) => ({ left: startx, top: starty, right: endx, bottom: endy });
const areaOf = ({ left, top, right, bottom }) => ({ startx: left, starty: top, endx: right, endy: bottom });

const circle = 128; // its stretch

function measureWindow(values, name, size) {
	const value = values.of(name);
	if (!isRecord(value)) {
		return null;
	}
	if ('startx' in value) {
		return {
			name, group: 'windows', kind: 'box', geometry: boxOf(value), move: moveBox, handles: corners,
			write: (box) => [[name, areaOf(box)]],
		};
	}
	const { radius, xpos, ypos, vstretch } = value; // from the centre of the picture
	const centre = { x: size.width / 2, y: size.height / 2 };
	return {
		name, group: 'windows', kind: 'ellipse', move: moveEllipse, handles: [{ x: 1, y: 0 }, { x: 0, y: 1 }],
		geometry: { x: centre.x + xpos, y: centre.y + ypos, across: radius, down: radius * vstretch / circle },
		write: ({ x, y, across, down }) => [[name, {
			...value, xpos: x - centre.x, ypos: y - centre.y, radius: across,
			vstretch: across === 0 ? vstretch : Math.round(down * circle / across),
		}]],
	};
}

function blanking(values) {
	const [position, size] = ['circularblankingposition', 'circularblankingsize'];
	const centre = values.of(position);
	const radius = values.of(size);
	return !isRecord(centre) || values.of('circularblankingmode') !== 'on' ? null : {
		name: position, group: 'overlays', kind: 'ellipse', move: moveEllipse, handles: [{ x: 1, y: 0 }],
		geometry: { x: centre.xpos, y: centre.ypos, across: radius, down: radius },
		write: ({ x, y, across }) => [[position, { xpos: x, ypos: y }], [size, across]],
	};
}

/** A line: its middle is at the position, from the corner (Orvik) or from the centre of the picture (M2VX). */
function overlay(values, name, size) {
	const [, index] = name.split('.');
	const position = values.of(name);
	if (!isRecord(position) || values.of(`overlayshow.${index}`) !== 'on') {
		return null;
	}
	const centred = (values.functions.get(name).limits ?? []).some(({ min }) => min < 0);
	const origin = centred ? { x: size.width / 2, y: size.height / 2 } : { x: 0, y: 0 };
	const { length = 0 } = values.of(`overlaysize.${index}`) ?? {};
	const { style = 0 } = values.of(`overlaystyle.${index}`) ?? {};
	const inside = (value) => centred ? value : Math.max(value, 0);
	return {
		name, group: 'overlays', kind: 'lines', handles: [],
		geometry: { x: origin.x + position.posx, y: origin.y + position.posy, length, style },
		move: (line, _, dx, dy) => ({ ...line, x: inside(line.x + dx), y: inside(line.y + dy) }),
		write: ({ x, y }) => [[name, { posx: x - origin.x, posy: y - origin.y }]],
	};
}

/** The sensor in pixels of the picture, which shows what is read out of it; null for a camera that reads out all. */
function sensorOf(functions) {
	const area = functions.value('readoutarea');
	if (!isRecord(area)) {
		return null;
	}
	const limits = functions.get('readoutarea').limits ?? [];
	const axis = (start, end, flip) => {
		const flipped = functions.value(flip) === 'on';
		const last = limits.find(({ field }) => field === end)?.max ?? area[end];
		return {
			// Its own inverse but for the direction: from the sensor into the picture, and back.
			toPicture: (value) => flipped ? area[end] - value : value - area[start],
			toSensor: (value) => flipped ? area[end] - value : value + area[start],
			first: flipped ? area[end] - last : -area[start],
			length: last + 1,
		};
	};
	return { x: axis('startx', 'endx', 'horizontalflip'), y: axis('starty', 'endy', 'verticalflip') };
}

export function sensorBox(functions) {
	const sensor = sensorOf(functions);
	return sensor && { left: sensor.x.first, top: sensor.y.first, width: sensor.x.length, height: sensor.y.length };
}

function inOrder(from, to) {
	return from <= to ? [from, to] : [to, from];
}

function readoutArea(values) {
	const sensor = sensorOf(values.functions);
	if (!sensor) {
		return null;
	}
	const area = values.of('readoutarea');
	const [left, right] = inOrder(sensor.x.toPicture(area.startx), sensor.x.toPicture(area.endx));
	const [top, bottom] = inOrder(sensor.y.toPicture(area.starty), sensor.y.toPicture(area.endy));
	const shift = (box, sign) => ({
		left: box.left - sign * sensor.x.first, right: box.right - sign * sensor.x.first,
		top: box.top - sign * sensor.y.first, bottom: box.bottom - sign * sensor.y.first,
	});
	return {
		name: 'readoutarea', group: 'area', kind: 'box', handles: corners, geometry: { left, top, right, bottom },
		// Within the sensor, not within the picture.
		move: (box, handle, dx, dy) => shift(moveBox(shift(box, 1), handle, dx, dy), -1),
		write: (box) => {
			const [startx, endx] = inOrder(sensor.x.toSensor(box.left), sensor.x.toSensor(box.right));
			const [starty, endy] = inOrder(sensor.y.toSensor(box.top), sensor.y.toSensor(box.bottom));
			return [['readoutarea', { startx, starty, endx, endy }]];
		},
	};
}

/**
 * All shapes of the camera.
 * @param drafts values, by name, that take the place of those that the camera holds
 * @param size   of the picture
 */
export function shapesOf(functions, drafts, size) {
	const values = { functions, of: (name) => drafts.get(name) ?? functions.value(name) };
	const names = (base) => functions.families().find(({ name }) => name === base)?.names ?? [];
	return [
		readoutArea(values),
		blanking(values),
		...names('measurewindow').map((name) => measureWindow(values, name, size)),
		...names('overlayposition').map((name) => overlay(values, name, size)),
	].filter(Boolean);
}
